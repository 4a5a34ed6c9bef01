#pragma once

#include "smtp/ServerReport.h"
#include "smtp/client/AuthExchange.h"
#include "smtp/client/ClientSurroundings.h"
#include "smtp/client/Secrets.h"
#include "smtp/client/SessionFault.h"
#include "smtp/client/SessionTrace.h"
#include "smtp/client/Transaction.h"
#include "smtp/client/Watchdog.h"

#include <QHostAddress>
#include <QObject>
#include <QSslSocket>

#include <memory>
#include <optional>

/// What became of the message that a session carried.
struct Settlement
{
    Transaction::Outcome outcome = Transaction::Outcome::Open;
    QList<ServerReply> replies;
    bool chunkingFailed = false;
};

/// What earlier sessions with a server have taught.
struct Experience
{
    bool mayChunk = true;
    bool wantsLogin = false; ///< it takes no message without
};

/// One connection to the server, from opening it to its end.
class Session final : public QObject
{
    Q_OBJECT

public:
    enum class Phase {
        Off,
        Connecting,
        Tls, ///< the handshake
        Greeting,
        Ehlo,
        Helo,
        StartTls, ///< the command
        Login,    ///< somebody looks for a login; the connection may end meanwhile
        Auth,
        Ready,
        Mail,
        Quit
    };
    Q_ENUM(Phase)

    Session(const ClientSurroundings &from, QObject *parent);

    /// Opens the connection; the session reports when it is ready or has failed.
    void open(const ServerAddress &server, const Experience &experience);
    /// Transfers a message in a session that is ready.
    void send(const Letter &letter);
    /// Ends the session politely, as far as it has come. It reports nothing any more and deletes
    /// itself.
    void quit();

    [[nodiscard]] Phase phase() const { return m_phase; }
    /// Gives up a message that waits for a login; the server has certainly not taken it.
    void withdrawHeld();
    /// Why a session is off.
    [[nodiscard]] const SessionFault &fault() const { return m_fault; }
    /// What the server was like so far.
    [[nodiscard]] const ServerReport &description() const { return m_report; }
    /// The server took no message before somebody was logged in.
    [[nodiscard]] bool wantsLogin() const { return m_experience.wantsLogin; }
    /// Whether a password may go to a server at that address: on a line that nobody else can read.
    [[nodiscard]] static bool mayCarryPassword(const QHostAddress &server, bool isEncrypted);
    /// Bytes of a message wait to be transferred.
    [[nodiscard]] bool isTransferring() const { return m_transaction && !isAllWritten(); }

Q_SIGNALS:
    /// The session became ready, settled a message, or ended; always the last thing that the
    /// session does before control goes back.
    void reported(const std::optional<Settlement> &settlement);
    /// One more step towards being ready was made; what it is stands in description().
    void progressed();
    /// It waits for a login, or waits no longer.
    void loginAwaited(bool waits);

private:
    // The connection
    void enter(Phase phase, const QString &reason);
    void connectToServer();
    void onConnected();
    void onReadyRead();
    void onSocketError();
    void onBytesWritten(qint64 count);
    void onLimit();
    void readReplies();
    [[nodiscard]] bool isListening() const
    {
        return m_phase != Phase::Off && m_phase != Phase::Tls && m_socket->isOpen();
    }
    void takeReply(WireReply reply);
    /// Writes a command that is no secret.
    void say(const QByteArray &line);
    void write(const QByteArray &bytes);
    [[nodiscard]] bool isAllWritten() const
    {
        return m_unwritten == 0 && m_socket->encryptedBytesToWrite() == 0;
    }
    void moveLimit();
    void report();
    /// The session cannot go on: it settles its message and is off.
    void fail(SmtpErrorNumber number, const QString &reason);
    void dropConnection();
    /// Nobody waits for the login that is looked for.
    void endLoginSearch();

    // From the greeting to a session that is ready
    void reach(ServerStep step);
    void takeGreeting(const WireReply &reply);
    void hello(Phase phase, const QString &reason);
    void takeHelloReply(const WireReply &reply);
    void afterHello();
    void beginTls();
    void onSslErrors(const QList<QSslError> &errors);
    void refuseCertificate();
    void onEncrypted();
    void logIn();
    void lookForLogin(const QString &refusal);
    void takeLogin(const LoginAnswer &answer);
    void authenticate();
    void takeAuthReply(const WireReply &reply);
    void answerChallenge();
    void loginRefused(const ServerReply &reply);
    void failLogin(const QString &reason);
    void becomeReady(const QString &reason);

    // A message
    void pump();
    void begin(const Letter &letter);
    [[nodiscard]] bool holdForLogin();
    void settle();

    const ClientSurroundings &m_from;
    ServerAddress m_server;
    ServerAccount m_account;
    Experience m_experience;
    std::unique_ptr<QSslSocket> m_socket; ///< a fresh one for each connection
    Watchdog m_watchdog;
    ReplyReader m_reader;
    SessionTrace m_trace;
    Secrets m_secrets;
    Phase m_phase = Phase::Off;
    SessionFault m_fault;
    ServerReport m_report;
    Extensions m_extensions;
    std::optional<Login> m_login; ///< found, and not refused
    std::optional<AuthExchange> m_exchange;
    int m_loginRefusals = 0;
    quint32 m_loginSearch = 0; ///< changes when a search begins or ends, and makes it stale
    bool m_needsReset = false; ///< the server may hold parts of an earlier message
    qint64 m_unwritten = 0;    ///< bytes that the socket has not yet passed on
    std::optional<Transaction> m_transaction;
    std::optional<Letter> m_heldLetter;     ///< waits for a login
    std::optional<Settlement> m_settlement; ///< to be reported
    bool m_hasNews = false;
};
