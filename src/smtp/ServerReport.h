#pragma once

#include "base/ServerReply.h"
#include "smtp/ServerAddress.h"
#include "smtp/SmtpErrorNumber.h"

#include <QByteArray>
#include <QDateTime>
#include <QStringList>

#include <optional>

/// The certificate that a server showed, and what became of it.
struct ServerCertificate
{
    enum class Standing {
        Verified,
        Trusted,   ///< it does not verify, and the user trusts this one
        Unchecked, ///< it does not verify, and nothing secret is said: port 25 without a login
        Refused,
    };

    Standing standing = Standing::Verified;
    QString host;           ///< the server that showed it
    QString owner;          ///< the name it was issued to
    QStringList names;      ///< the host names it is for
    QString issuer;         ///< who issued it
    QDateTime validFrom;    ///< UTC
    QDateTime validUntil;   ///< UTC
    QByteArray fingerprint; ///< SHA-256, 32 bytes
    QString problem;        ///< why it does not verify, in plain words; empty when it does
};

/// "AB:CD:...", as browsers show it.
[[nodiscard]] QString fingerprintText(const QByteArray &fingerprint);
/// The bytes of such a text, ":" and blanks left out or not; empty when it is none of SHA-256.
[[nodiscard]] QByteArray fingerprintOf(const QString &text);

/// How far a conversation with a server got.
enum class ServerStep {
    Looking, ///< for the host's addresses
    Found,   ///< they are known
    Connected,
    Encrypted, ///< left out on a line without encryption; on port 465 it precedes the greeting
    Ready,     ///< extensions known, logged in where that is wanted
};

/// What became of the login.
enum class LoginState {
    NotOffered,
    NotWanted, ///< offered, and neither the port nor the user asks for it
    Accepted,
    Failed,
};

/// What a server was like in one session, step by step.
struct ServerReport
{
    ServerAddress server;
    ServerStep reached = ServerStep::Looking;
    QStringList addresses; ///< of the host
    QString address;       ///< the one that is connected
    QString greeting;
    QString encryption; ///< "TLSv1.3, TLS_AES_256_GCM_SHA384"; empty: none
    std::optional<ServerCertificate> certificate;
    QStringList extensions; ///< as the server announced them before the login, one a line
    LoginState login = LoginState::NotOffered;
    QString loginMechanism; ///< "PLAIN"; of an accepted or refused login
    QString loginUser;
    qint64 largestMessage = 0; ///< bytes (RFC 1870); 0: no limit is announced
    /// Why it ended early, in plain words; empty while it goes on and when all is well.
    QString failure;
    SmtpErrorNumber failureNumber = SmtpErrorNumber::Closed; ///< of a failure
};
