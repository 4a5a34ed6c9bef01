#pragma once

#include "smtp/ServerAddress.h"

#include <QByteArray>
#include <QList>

/// What the user has decided about a server, and what was learnt of it. It holds for all ports of
/// the host.
struct ServerAccount
{
    QString user;         ///< who logs in; empty: asked for when the server wants a login
    QString tokenCommand; ///< the command that prints an access token; empty: a password is used
    bool usePipelining = true;
    bool useChunking = true;
    bool writeTrace = false;
    /// SHA-256 fingerprints (32 bytes) of certificates that are accepted although they do not
    /// verify.
    QList<QByteArray> trustedCertificates;
    /// The ports on which the server has offered STARTTLS.
    QList<quint16> startTlsPorts;

    bool operator==(const ServerAccount &) const = default;
};

/// The accounts, by host.
class ServerAccounts
{
public:
    ServerAccounts() = default;
    ServerAccounts(const ServerAccounts &) = delete;
    ServerAccounts &operator=(const ServerAccounts &) = delete;
    virtual ~ServerAccounts() = default;

    /// What is known about the host, in whatever case it is written; defaults for an unknown one.
    [[nodiscard]] virtual ServerAccount account(const QString &host) const = 0;
    /// The server offered STARTTLS: from now on it is not talked to without.
    virtual void rememberStartTls(const ServerAddress &server) = 0;
};
