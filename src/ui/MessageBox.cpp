#include "ui/MessageBox.h"

#include <QCloseEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int MostLines = 15;
/// Where the box wraps lines, and how wide one word may make it.
constexpr int LineWidth = 480;
constexpr int MostWordWidth = 640;
/// Longer texts are not worth measuring.
constexpr int MostCharacters = 5000;

QMessageBox::Icon shown(Icon icon)
{
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons shown(Buttons buttons)
{
    switch (buttons) {
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::ContinueOpenForget:
    case Buttons::OpenForget:
        break;
    }
    return QMessageBox::NoButton;
}

} // namespace

MessageBox::MessageBox(::Icon icon, const QString &title, const QString &text,
                       const QString &detail, QWidget *window)
    : QMessageBox(shown(icon), title.isEmpty() ? u"Sorvanta"_s : title, {}, NoButton, window),
      m_fullText(text)
{
    QStringList scrolled;
    if (fits(text)) {
        setText(text);
    } else {
        const QString firstLine = text.section(u'\n', 0, 0);
        const bool hasHeading = firstLine.size() < text.size() && fits(firstLine);
        setText(hasHeading ? firstLine.trimmed() : QString());
        scrolled.append(hasHeading ? text.sliced(firstLine.size() + 1) : text);
    }
    if (fits(detail))
        setInformativeText(detail);
    else
        scrolled.append(detail);
    // Texts name files and people, who are free to call themselves "<b>".
    for (QLabel *label : findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    if (!scrolled.isEmpty())
        addScrolledText(scrolled.join("\n\n"_L1));
}

MessageBox::MessageBox(const Notice &notice, QWidget *window)
    : MessageBox(notice.icon, notice.title, notice.text, notice.detail, window)
{
    setStandardButtons(Ok);
    setDefaultButton(Ok);
}

MessageBox::MessageBox(const ::Question &question, QWidget *window)
    : MessageBox(question.icon, question.title, question.text, {}, window)
{
    setStandardButtons(shown(question.buttons));
    addButtons(question.buttons);
    if (question.buttons == Buttons::OkCancel)
        setDefaultButton(Ok);
    else if (m_ownButtons.empty())
        setDefaultButton(question.enterIsNo ? No : Yes);
}

// The first one is what Enter means.
void MessageBox::addButtons(Buttons buttons)
{
    const auto add = [this](const QString &text, ButtonRole role, Answer answer) {
        QPushButton *const button = addButton(text, role);
        if (m_ownButtons.empty())
            setDefaultButton(button);
        m_ownButtons.emplace_back(button, answer);
    };
    if (buttons == Buttons::ContinueOpenForget)
        add(tr("&Continue"), AcceptRole, Answer::Continue);
    if (buttons == Buttons::ContinueOpenForget || buttons == Buttons::OpenForget) {
        add(tr("&Open as it is"), AcceptRole, Answer::OpenAsItIs);
        add(tr("&Forget"), DestructiveRole, Answer::Forget);
    }
}

bool MessageBox::fits(const QString &text) const
{
    if (text.size() > MostCharacters || text.count(u'\n') > MostLines)
        return false;
    const QFontMetrics metrics = fontMetrics();
    const QRect line(0, 0, LineWidth, metrics.height());
    const QSize needed = metrics.boundingRect(line, Qt::TextWordWrap, text).size();
    return needed.width() <= MostWordWidth && needed.height() <= MostLines * metrics.lineSpacing();
}

void MessageBox::addScrolledText(const QString &text)
{
    m_scrolledText = new QPlainTextEdit(text, this);
    m_scrolledText->setReadOnly(true);
    m_scrolledText->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                            Qt::TextSelectableByKeyboard);
    m_scrolledText->setTabChangesFocus(true);
    m_scrolledText->setAccessibleName(this->text().isEmpty() ? windowTitle() : this->text());
    m_scrolledText->setMinimumSize(LineWidth, MostLines * fontMetrics().lineSpacing());
    placeScrolledText();
}

// Between the text and the buttons, which are the last item.
void MessageBox::placeScrolledText()
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    QLayoutItem *buttons = grid->takeAt(grid->count() - 1);
    const int row = grid->rowCount();
    grid->addWidget(m_scrolledText, row, 0, 1, grid->columnCount());
    grid->addItem(buttons, row + 1, 0, 1, grid->columnCount());
    setTabOrder(m_scrolledText, buttons->widget());
}

Answer MessageBox::answer() const
{
    for (const auto &[button, answer] : m_ownButtons) {
        if (button == clickedButton())
            return answer;
    }
    switch (standardButton(clickedButton())) {
    case Yes:
        return Answer::Yes;
    case No:
        return Answer::No;
    case Ok:
        return Answer::Ok;
    default:
        return Answer::Cancel;
    }
}

void MessageBox::changeEvent(QEvent *event)
{
    QMessageBox::changeEvent(event);
    // Another style brings another icon, and a layout made anew around it.
    if (m_scrolledText != nullptr && layout()->indexOf(m_scrolledText) < 0)
        placeScrolledText();
}

// Esc and the title bar mean Cancel, also where no button says so.
void MessageBox::keyPressEvent(QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Cancel))
        QMessageBox::keyPressEvent(event);
    else if (!mustBeDecided())
        reject();
}

void MessageBox::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!mustBeDecided());
    if (!mustBeDecided())
        reject();
}
