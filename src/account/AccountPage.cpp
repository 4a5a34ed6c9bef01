#include "account/AccountPage.h"

#include "base/Lines.h"

#include <QPointer>

namespace {

template <typename T>
QList<T> without(QList<T> all, const QList<T> &removed)
{
    all.removeIf([&removed](const T &one) { return removed.contains(one); });
    return all;
}

QString line(const QString &text)
{
    return oneLine(text).trimmed();
}

} // namespace

AccountPage::AccountPage(const ServerAddress &server, Accounts &accounts, PasswordStore &passwords,
                         ServerProbe &probe, QObject *parent)
    : QObject(parent),
      m_server(server),
      m_accounts(accounts),
      m_passwords(passwords),
      m_probe(probe)
{
    connect(&probe, &ServerProbe::progressed, this, &AccountPage::onReport);
    connect(&probe, &ServerProbe::finished, this, [this](const ServerReport &report) {
        m_isTesting = false;
        onReport(report);
    });
    passwords.isAvailable([page = QPointer(this)](bool isAvailable) {
        if (!page)
            return;
        page->m_hasKeyring = isAvailable;
        Q_EMIT page->changed();
    });
}

AccountPage::~AccountPage()
{
    if (m_isTesting)
        m_probe.giveUp();
}

AccountEntries AccountPage::entries() const
{
    const ServerAccount account = m_accounts.account(m_server.host);
    return {account.user,      {}, account.tokenCommand, account.usePipelining, account.useChunking,
            account.writeTrace};
}

QList<QByteArray> AccountPage::certificates() const
{
    return without(m_accounts.account(m_server.host).trustedCertificates, m_removed);
}

void AccountPage::removeCertificate(const QByteArray &fingerprint)
{
    m_removed.append(fingerprint);
    Q_EMIT changed();
}

QList<quint16> AccountPage::startTlsPorts() const
{
    return without(m_accounts.account(m_server.host).startTlsPorts, m_forgotten);
}

void AccountPage::forgetStartTls(quint16 port)
{
    m_forgotten.append(port);
    Q_EMIT changed();
}

void AccountPage::forgetPassword()
{
    m_forgetsPassword = true;
    Q_EMIT changed();
}

void AccountPage::keep(const AccountEntries &entries)
{
    keepThen(entries, [this] { Q_EMIT kept(); });
}

void AccountPage::test(const AccountEntries &entries)
{
    keepThen(entries, [this] {
        m_isTesting = true;
        m_report.reset();
        Q_EMIT changed();
        m_probe.begin(m_server);
    });
}

void AccountPage::stopTest()
{
    if (!m_isTesting)
        return;
    m_probe.giveUp();
    m_isTesting = false;
    Q_EMIT changed();
}

bool AccountPage::canTrust() const
{
    return !isBusy() && m_report && m_report->certificate &&
           m_report->certificate->standing == ServerCertificate::Standing::Refused &&
           !m_report->certificate->fingerprint.isEmpty();
}

void AccountPage::trust(const AccountEntries &entries)
{
    if (!canTrust())
        return;
    const QByteArray fingerprint = m_report->certificate->fingerprint;
    m_removed.removeAll(fingerprint);
    if (m_accounts.trust(m_server.host, fingerprint))
        test(entries);
    else
        Q_EMIT failed(tr("The settings cannot be written."));
}

void AccountPage::keepThen(const AccountEntries &entries, std::function<void()> then)
{
    if (isBusy())
        return;
    const bool isForSomebody = !entries.password.isEmpty() || !line(entries.tokenCommand).isEmpty();
    if (isForSomebody && line(entries.user).isEmpty()) {
        Q_EMIT failed(tr("Enter the user too: a password or a token belongs to somebody."));
        return;
    }
    m_isKeeping = true;
    Q_EMIT changed();
    keepPassword(entries, [page = QPointer(this), entries, then = std::move(then)](QString reason) {
        if (!page)
            return;
        page->m_isKeeping = false;
        if (reason.isEmpty() && !page->keepAccount(entries))
            reason = tr("The settings cannot be written.");
        Q_EMIT page->changed();
        if (reason.isEmpty())
            then();
        else
            Q_EMIT page->failed(reason);
    });
}

// Nothing is lost of what a session learns while the page is open: only what was changed on the
// page is another.
bool AccountPage::keepAccount(const AccountEntries &entries)
{
    ServerAccount account = m_accounts.account(m_server.host);
    account.user = line(entries.user);
    account.tokenCommand = line(entries.tokenCommand);
    account.usePipelining = entries.usePipelining;
    account.useChunking = entries.useChunking;
    account.writeTrace = entries.writeTrace;
    account.trustedCertificates = certificates();
    account.startTlsPorts = startTlsPorts();
    if (!m_accounts.setAccount(m_server.host, account))
        return false;
    m_removed.clear();
    m_forgotten.clear();
    return true;
}

void AccountPage::keepPassword(const AccountEntries &entries, std::function<void(QString)> then)
{
    const QString &host = m_server.host;
    if (m_forgetsPassword) {
        m_passwords.remove(
            host, m_accounts.account(host).user,
            [page = QPointer(this), entries, then = std::move(then)](const QString &reason) {
                if (!page)
                    return;
                page->m_forgetsPassword = !reason.isEmpty();
                if (reason.isEmpty())
                    page->keepPassword(entries, then);
                else
                    then(reason);
            });
    } else if (!entries.password.isEmpty()) {
        m_passwords.write(host, line(entries.user), entries.password, std::move(then));
    } else {
        then({});
    }
}

void AccountPage::onReport(const ServerReport &report)
{
    m_report = report;
    Q_EMIT changed();
}
