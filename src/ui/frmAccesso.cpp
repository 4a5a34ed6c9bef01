#include "ui/frmAccesso.h"

#include "base/Lines.h"

#include "ui_frmAccesso.h"

#include <QPushButton>

namespace {

constexpr int MostRefusalLines = 5;

} // namespace

frmAccesso::frmAccesso(const LoginBox &box, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmAccesso>())
{
    m_ui->setupUi(this);
    m_ui->lblServer->setText(tr("The server %1 asks who you are.").arg(box.server));
    showRefusal(box.refusal);
    m_ui->txtUser->setText(box.user);
    m_ui->chkRemember->setVisible(box.canRemember);
    (box.user.isEmpty() ? m_ui->txtUser : m_ui->txtPassword)->setFocus();

    const auto check = [this] {
        m_ui->cmdOK->setEnabled(!m_ui->txtUser->text().trimmed().isEmpty() &&
                                !m_ui->txtPassword->text().isEmpty());
    };
    connect(m_ui->txtUser, &QLineEdit::textChanged, this, check);
    connect(m_ui->txtPassword, &QLineEdit::textChanged, this, check);
    check();
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmAccesso::~frmAccesso() = default;

LoginEntry frmAccesso::takeEntry()
{
    LoginEntry entry{oneLine(m_ui->txtUser->text()).trimmed(), m_ui->txtPassword->text(),
                     m_ui->chkRemember->isChecked()};
    m_ui->txtPassword->clear();
    return entry;
}

// Servers say what they like, and as much as they like.
void frmAccesso::showRefusal(const QString &refusal)
{
    m_ui->lblRefused->setVisible(!refusal.isEmpty());
    m_ui->txtRefusal->setVisible(!refusal.isEmpty());
    m_ui->txtRefusal->setPlainText(refusal);
    m_ui->txtRefusal->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    // As high as it needs to be, and scrolled beyond that.
    const QFontMetrics metrics = m_ui->txtRefusal->fontMetrics();
    const int margin =
        qRound(m_ui->txtRefusal->document()->documentMargin()) + m_ui->txtRefusal->frameWidth();
    const QRect line(0, 0, minimumWidth() * 3 / 4, metrics.height());
    const int needed = metrics.boundingRect(line, Qt::TextWrapAnywhere, refusal).height();
    const int most = MostRefusalLines * metrics.lineSpacing();
    m_ui->txtRefusal->setFixedHeight(qMin(needed, most) + metrics.lineSpacing() / 2 + 2 * margin);
}
