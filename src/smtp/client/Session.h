#pragma once

#include "smtp/ServerAddress.h"
#include "smtp/client/Limits.h"
#include "smtp/client/ReplyReader.h"
#include "smtp/client/SessionFault.h"
#include "smtp/client/Transaction.h"
#include "smtp/client/Watchdog.h"

#include <QObject>
#include <QTcpSocket>

#include <optional>

/// What became of the message that a session carried.
struct Settlement
{
    Transaction::Outcome outcome = Transaction::Outcome::Open;
    QList<ServerReply> replies;
    bool chunkingFailed = false;
};

/// One connection to the server, from opening it to its end.
class Session final : public QObject
{
    Q_OBJECT

public:
    enum class Phase { Off, Connecting, Greeting, Ehlo, Helo, Ready, Mail, Quit };
    Q_ENUM(Phase)

    /// `hostName`: the full name of this machine, or empty.
    Session(const Limits &limits, QString hostName, QObject *parent);

    /// Opens the connection; the session reports when it is ready or has failed.
    void open(const ServerAddress &target, bool mayChunk);
    /// Transfers a message in a session that is ready.
    void send(const Letter &letter);
    /// Ends the session politely, as far as it has come. It reports nothing any more and deletes
    /// itself.
    void quit();

    [[nodiscard]] Phase phase() const { return m_phase; }
    /// Why a session is off.
    [[nodiscard]] const SessionFault &fault() const { return m_fault; }
    /// Bytes of a message wait to be transferred.
    [[nodiscard]] bool isTransferring() const { return m_transaction && m_unwritten > 0; }

Q_SIGNALS:
    /// The session became ready, settled a message, or ended; always the last thing that the
    /// session does before control goes back.
    void reported(const std::optional<Settlement> &settlement);

private:
    void enter(Phase phase, const QString &reason);
    void onConnected();
    void onReadyRead();
    void onSocketError();
    void onBytesWritten(qint64 count);
    void onLimit();

    void readReplies();
    void takeReply(const WireReply &reply);
    void takeHelloReply(const WireReply &reply);
    void hello(Phase phase, const QString &reason);
    void becomeReady(const QString &reason);
    void pump();
    void settle();
    /// The session cannot go on: it settles its message and is off.
    void fail(SmtpErrorNumber number, const QString &reason);
    void write(const QByteArray &bytes);
    void moveLimit();
    void report();

    const Limits m_limits;
    const QString m_hostName;
    QString m_targetName; ///< for the trace
    QTcpSocket m_socket;
    Watchdog m_watchdog;
    ReplyReader m_reader;
    Phase m_phase = Phase::Off;
    SessionFault m_fault;
    Extensions m_extensions;
    bool m_mayChunk = true;
    bool m_needsReset = false; ///< the server may hold parts of an earlier message
    qint64 m_unwritten = 0;    ///< bytes that the system has not yet taken
    std::optional<Transaction> m_transaction;
    std::optional<Settlement> m_settlement; ///< to be reported
    bool m_hasNews = false;
};
