#include "ui/frmAccount.h"

#include "base/HelpPages.h"
#include "smtp/ServerReportText.h"

#include "ui_frmAccount.h"

#include <QDir>
#include <QFileInfo>
#include <QPushButton>

#include <initializer_list>
#include <utility>

namespace {

struct Sign
{
    const char *picture;
    QString word;
};

} // namespace

frmAccount::frmAccount(const ServerAddress &server, AccountWindowParts parts, QWidget *parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmAccount>()),
      m_probe(std::move(parts.probe)),
      m_prompts(parts.prompts),
      m_shell(parts.shell),
      m_traceFile(parts.traceFile),
      m_page(server, parts.accounts, parts.passwords, *m_probe)
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Account of %1").arg(server.host));
    m_ui->lblTest->setText(tr("Tries %1 out and sends nothing. Like OK, it keeps what is entered "
                              "here.")
                               .arg(server.toText()));
    m_ui->lblTraceFile->setText(QDir::toNativeSeparators(m_traceFile));
    showEntries();

    connect(m_ui->cmdForgetPassword, &QPushButton::clicked, this, [this] {
        m_ui->txtPassword->clear();
        m_page.forgetPassword();
    });
    connect(m_ui->cmdRemove, &QPushButton::clicked, this, [this] {
        m_page.removeCertificate(m_page.certificates().value(m_ui->lstCertificates->currentRow()));
    });
    connect(m_ui->cmdForgetStartTls, &QPushButton::clicked, this, [this] {
        m_page.forgetStartTls(m_page.startTlsPorts().value(m_ui->lstStartTls->currentRow()));
    });
    connect(m_ui->cmdOpenTrace, &QPushButton::clicked, this, &frmAccount::openTrace);
    connect(m_ui->cmdTest, &QPushButton::clicked, this, [this] { m_page.test(entered()); });
    connect(m_ui->cmdTrust, &QPushButton::clicked, this, [this] { m_page.trust(entered()); });
    connect(m_ui->cmdStopTest, &QPushButton::clicked, this, [this] { m_page.stopTest(); });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, [this] {
        m_page.stopTest();
        m_page.keep(entered());
    });
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    for (LineList *const list : {m_ui->lstCertificates, m_ui->lstStartTls})
        connect(list, &LineList::itemSelectionChanged, this, &frmAccount::showSelection);

    connect(&m_page, &AccountPage::changed, this, &frmAccount::showState);
    connect(&m_page, &AccountPage::kept, this, &QDialog::accept);
    connect(&m_page, &AccountPage::failed, this, [this](const QString &reason) {
        m_prompts.notice({Icon::Exclamation, windowTitle(), reason});
    });
    connect(this, &QDialog::finished, this, [this] {
        m_page.stopTest();
        m_ui->txtPassword->clear();
    });
    showState();
}

frmAccount::~frmAccount() = default;

AccountEntries frmAccount::entered() const
{
    return {m_ui->txtUser->text(),          m_ui->txtPassword->text(),
            m_ui->txtTokenCommand->text(),  m_ui->chkPipelining->isChecked(),
            m_ui->chkChunking->isChecked(), m_ui->chkTrace->isChecked()};
}

void frmAccount::showEntries()
{
    const AccountEntries entries = m_page.entries();
    m_ui->txtUser->setText(entries.user);
    m_ui->txtTokenCommand->setText(entries.tokenCommand);
    m_ui->chkPipelining->setChecked(entries.usePipelining);
    m_ui->chkChunking->setChecked(entries.useChunking);
    m_ui->chkTrace->setChecked(entries.writeTrace);
}

void frmAccount::showState()
{
    const bool hasKeyring = m_page.hasKeyring().value_or(false);
    m_ui->txtPassword->setEnabled(hasKeyring);
    m_ui->cmdForgetPassword->setEnabled(hasKeyring && !m_page.forgetsPassword());
    if (!m_page.hasKeyring())
        m_ui->lblKeyring->setText(tr("Looking for a keyring..."));
    else if (!hasKeyring)
        m_ui->lblKeyring->setText(tr("There is no keyring here to keep a password in: it is asked "
                                     "for when it is needed."));
    else if (m_page.forgetsPassword())
        m_ui->lblKeyring->setText(tr("OK takes the password out of the keyring."));
    else
        m_ui->lblKeyring->setText(tr("It is kept in the keyring. Left empty, it stays as it is."));
    // A test that begins has put it into the keyring.
    if (m_page.isTesting() && !m_showsTest)
        m_ui->txtPassword->clear();
    m_showsTest = m_page.isTesting();

    showRemembered();
    m_ui->cmdTest->setEnabled(!m_page.isBusy());
    m_ui->cmdStopTest->setVisible(m_page.isTesting());
    m_ui->cmdTrust->setVisible(m_page.canTrust());
    m_ui->cmdOK->setEnabled(!m_page.isBusy() || m_page.isTesting());
    showReport();
}

void frmAccount::showRemembered()
{
    QList<ShownLine> certificates;
    for (const QByteArray &fingerprint : m_page.certificates()) {
        const QString text = fingerprintText(fingerprint);
        certificates.append({"note", text, text});
    }
    m_ui->lstCertificates->setLines(certificates);

    QList<ShownLine> ports;
    for (const quint16 port : m_page.startTlsPorts()) {
        const QString text = tr("offers STARTTLS on port %1: never without").arg(port);
        ports.append({"good", text, text});
    }
    m_ui->lstStartTls->setLines(ports);
    const bool hasCertificates = !certificates.isEmpty();
    for (QWidget *const widget : std::initializer_list<QWidget *>{
             m_ui->lblCertificates, m_ui->lstCertificates, m_ui->cmdRemove})
        widget->setVisible(hasCertificates);
    for (QWidget *const widget : std::initializer_list<QWidget *>{
             m_ui->lblStartTls, m_ui->lstStartTls, m_ui->cmdForgetStartTls})
        widget->setVisible(!ports.isEmpty());
    m_ui->grpEncryption->setVisible(hasCertificates || !ports.isEmpty());
    showSelection();
}

void frmAccount::showSelection()
{
    m_ui->cmdRemove->setEnabled(!m_ui->lstCertificates->selectedItems().isEmpty());
    m_ui->cmdForgetStartTls->setEnabled(!m_ui->lstStartTls->selectedItems().isEmpty());
}

void frmAccount::showReport()
{
    const auto signOf = [](ReportLine::Kind kind) -> Sign {
        switch (kind) {
        case ReportLine::Kind::Good:
            return {"good", tr("Good")};
        case ReportLine::Kind::Bad:
            return {"bad", tr("Bad")};
        case ReportLine::Kind::Note:
            break;
        }
        return {"note", tr("Note")};
    };
    QList<ShownLine> lines;
    if (m_page.report()) {
        for (const ReportLine &line : linesOf(*m_page.report())) {
            const Sign sign = signOf(line.kind);
            const QString text = line.label + QLatin1String(": ") + line.text;
            lines.append({sign.picture, text, sign.word + QLatin1String(". ") + text});
        }
    }
    if (lines == m_ui->lstReport->lines())
        return;
    m_ui->lstReport->setLines(lines);
    m_ui->lstReport->scrollToBottom();
}

void frmAccount::openTrace()
{
    if (QFileInfo::exists(m_traceFile))
        m_shell.open(helpAddress(m_traceFile, {}));
    else
        m_prompts.notice(
            {Icon::Information, windowTitle(), tr("Nothing has been written yet."), m_traceFile});
}
