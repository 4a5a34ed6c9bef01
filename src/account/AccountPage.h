#pragma once

#include "account/Accounts.h"
#include "account/PasswordStore.h"
#include "smtp/ServerProbe.h"

#include <QObject>

#include <functional>
#include <optional>

/// What can be typed and switched on the page of an account.
struct AccountEntries
{
    QString user;
    QString password; ///< empty: it stays as it is
    QString tokenCommand;
    bool usePipelining = true;
    bool useChunking = true;
    bool writeTrace = false;
};

/// The page of a server's account, without a window. What is entered, removed and forgotten on it
/// is kept by keep() and by a test, and can be dropped until then.
class AccountPage : public QObject
{
    Q_OBJECT

public:
    /// The probe is the page's own: no other part listens to it.
    AccountPage(const ServerAddress &server, Accounts &accounts, PasswordStore &passwords,
                ServerProbe &probe, QObject *parent = nullptr);
    /// A test that goes on is given up.
    ~AccountPage() override;

    [[nodiscard]] const ServerAddress &server() const { return m_server; }
    /// What is kept now; no password is among it.
    [[nodiscard]] AccountEntries entries() const;
    /// Nothing before the answer is known.
    [[nodiscard]] std::optional<bool> hasKeyring() const { return m_hasKeyring; }

    /// The certificates that are trusted, without those that are removed on this page.
    [[nodiscard]] QList<QByteArray> certificates() const;
    void removeCertificate(const QByteArray &fingerprint);
    /// The ports on which the server has offered STARTTLS, without those forgotten on this page.
    [[nodiscard]] QList<quint16> startTlsPorts() const;
    void forgetStartTls(quint16 port);
    /// Takes the password of the user that is kept out of the keyring.
    void forgetPassword();
    [[nodiscard]] bool forgetsPassword() const { return m_forgetsPassword; }

    /// Keeps everything; kept() or failed() follows.
    void keep(const AccountEntries &entries);
    /// Keeps everything, then tries the server out; failed() follows when it cannot be kept.
    void test(const AccountEntries &entries);
    void stopTest();
    /// The server is being tried out, or the keyring is.
    [[nodiscard]] bool isBusy() const { return m_isKeeping || m_isTesting; }
    [[nodiscard]] bool isTesting() const { return m_isTesting; }
    /// How far the last test got.
    [[nodiscard]] const std::optional<ServerReport> &report() const { return m_report; }

    /// The last test ended because of a certificate that could be trusted.
    [[nodiscard]] bool canTrust() const;
    /// Trusts it from now on, and tests again.
    void trust(const AccountEntries &entries);

Q_SIGNALS:
    /// Something to be shown is another.
    void changed();
    void kept();
    /// It could not be kept: why, in plain words.
    void failed(const QString &reason);

private:
    void keepThen(const AccountEntries &entries, std::function<void()> then);
    [[nodiscard]] bool keepAccount(const AccountEntries &entries);
    void keepPassword(const AccountEntries &entries, std::function<void(QString)> then);
    void onReport(const ServerReport &report);

    const ServerAddress m_server;
    Accounts &m_accounts;
    PasswordStore &m_passwords;
    ServerProbe &m_probe;
    std::optional<bool> m_hasKeyring;
    QList<QByteArray> m_removed;
    QList<quint16> m_forgotten;
    bool m_forgetsPassword = false;
    bool m_isKeeping = false;
    bool m_isTesting = false;
    std::optional<ServerReport> m_report;
};
