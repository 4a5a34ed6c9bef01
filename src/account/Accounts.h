#pragma once

#include "base/CodePage.h"
#include "settings/SettingsStore.h"
#include "smtp/ServerAccounts.h"

#include <QHash>

/// The user's accounts, kept in the settings store: a key for each host, below that of the
/// program's settings. Passwords are never among them.
class Accounts final : public ServerAccounts
{
public:
    Accounts(SettingsStore &store, const CodePage &codePage);

    [[nodiscard]] ServerAccount account(const QString &host) const override;
    void rememberStartTls(const ServerAddress &server) override;

    /// Keeps the account as it is given. False when it cannot be written.
    bool setAccount(const QString &host, const ServerAccount &account);
    /// From now on this certificate is accepted for the host although it does not verify.
    bool trust(const QString &host, const QByteArray &fingerprint);

private:
    SettingsStore &m_store;
    const CodePage &m_codePage;
    /// Ports with STARTTLS, by host, that could not be written.
    QHash<QString, QList<quint16>> m_unwritten;
};
