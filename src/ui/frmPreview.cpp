#include "ui/frmPreview.h"

#include "base/Files.h"
#include "base/modMain.h"
#include "message/MessageReader.h"
#include "message/PersonalText.h"

#include "ui_frmPreview.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QListView>
#include <QScrollBar>
#include <QShowEvent>
#include <QStringListModel>

frmPreview::frmPreview(const CodePage &codePage, QWidget *parent)
    : QDialog(parent), m_codePage(codePage), m_ui(std::make_unique<Ui::frmPreview>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_ui->textView->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_ui->cboNome->setModel(new QStringListModel(m_ui->cboNome));
    // A list of thousands opens at once only when nobody asks each row for its size.
    if (auto *list = qobject_cast<QListView *>(m_ui->cboNome->view()))
        list->setUniformItemSizes(true);
    connect(m_ui->Option1, &QRadioButton::clicked, this, &frmPreview::Option1_Click);
    connect(m_ui->Option2, &QRadioButton::clicked, this, &frmPreview::Option2_Click);
    connect(m_ui->cmdChiudi, &QPushButton::clicked, this, &frmPreview::cmdChiudi_Click);
    connect(m_ui->cboNome, &QComboBox::currentIndexChanged, this, &frmPreview::showText);
}

frmPreview::~frmPreview() = default;

void frmPreview::Init(const PreviewSource &source, const QStringList &names)
{
    m_source = source;
    m_text.clear();
    m_ui->Option1->setEnabled(source.textIsShown);
    m_ui->Option2->setEnabled(source.htmlIsShown);
    m_ui->textView->clear();
    m_ui->htmlView->setHtml({}, {});
    const QSignalBlocker quiet(m_ui->cboNome);
    static_cast<QStringListModel *>(m_ui->cboNome->model())
        ->setStringList(QStringList(tr("As written")) + names);
    m_ui->cboNome->setCurrentIndex(0);
    SetMode(source.htmlIsShown);
}

void frmPreview::SetMode(bool html)
{
    m_isHtml = html;
    (html ? m_ui->Option2 : m_ui->Option1)->setChecked(true);
    m_ui->Label1->setText(html ? tr("Format: HTML") : tr("Format: plain text"));
    if (isVisible())
        readAgain();
}

void frmPreview::Option1_Click()
{
    SetMode(false);
}

void frmPreview::Option2_Click()
{
    SetMode(true);
}

void frmPreview::cmdChiudi_Click()
{
    hide();
}

void frmPreview::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        readAgain();
}

void frmPreview::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F5)
        readAgain();
    else
        QDialog::keyPressEvent(event);
}

bool frmPreview::hasSomething() const
{
    return m_isHtml ? m_source.htmlIsShown : m_source.textIsShown;
}

void frmPreview::readAgain()
{
    if (!hasSomething()) {
        showNotice(tr("No message has been chosen yet."));
        return;
    }
    const auto bytes = readWholeFile(m_isHtml ? m_source.htmlPath : m_source.textPath);
    if (!bytes) {
        showNotice(tr("This file cannot be read:") + u'\n' + bytes.error().path + u'\n' +
                   bytes.error().reason);
        return;
    }
    m_text = decodeMessage(*bytes, m_isHtml ? MessageKind::Html : MessageKind::Text, m_codePage);
    m_ui->views->setCurrentWidget(m_isHtml ? m_ui->htmlPage : m_ui->textPage);
    showText();
}

// The place that was read stays in sight.
void frmPreview::showText()
{
    if (m_ui->views->currentWidget() == m_ui->noticePage)
        return;
    const bool isPersonal = m_ui->cboNome->currentIndex() > 0;
    const QString text = isPersonal ? withName(m_text, m_ui->cboNome->currentText()) : m_text;
    QAbstractScrollArea *view = m_ui->textView;
    if (m_isHtml)
        view = m_ui->htmlView;
    const int place = view->verticalScrollBar()->value();
    if (m_isHtml)
        m_ui->htmlView->setHtml(text, FolderOf(m_source.htmlPath));
    else
        m_ui->textView->setPlainText(text);
    view->verticalScrollBar()->setValue(place);
}

void frmPreview::showNotice(const QString &text)
{
    m_ui->lblNotice->setText(text);
    m_ui->views->setCurrentWidget(m_ui->noticePage);
}
