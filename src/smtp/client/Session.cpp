#include "smtp/client/Session.h"

#include "smtp/client/HostName.h"

#include <QHostAddress>
#include <QLoggingCategory>
#include <QNetworkProxy>

#include <utility>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(sessionTrace, "sorvanta.smtp.session", QtInfoMsg)

namespace {

/// A server's refusal in plain words.
QString refusal(const WireReply &reply)
{
    return u"the server refuses: "_s + reply.toServerReply(SmtpVerb::None).toText();
}

} // namespace

Session::Session(const Limits &limits, QString hostName, QObject *parent)
    : QObject(parent),
      m_limits(limits),
      m_hostName(std::move(hostName)),
      m_watchdog([this] { onLimit(); }),
      m_reader(limits)
{
    connect(&m_socket, &QTcpSocket::connected, this, &Session::onConnected);
    connect(&m_socket, &QTcpSocket::readyRead, this, &Session::onReadyRead);
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &Session::onSocketError);
    connect(&m_socket, &QTcpSocket::bytesWritten, this, &Session::onBytesWritten);
}

void Session::enter(Phase phase, const QString &reason)
{
    qCDebug(sessionTrace).noquote() << m_targetName << m_phase << "->" << phase << ':' << reason;
    m_phase = phase;
}

void Session::open(const ServerAddress &target, bool mayChunk)
{
    m_targetName = target.toText();
    m_mayChunk = mayChunk;
    enter(Phase::Connecting, u"a session is wanted"_s);
    m_watchdog.start(m_limits.opening);
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_socket.connectToHost(target.host, target.port);
}

void Session::onConnected()
{
    // The data of one message are written in several pieces: they must not wait for each other's
    // acknowledgement.
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    enter(Phase::Greeting, u"connected"_s);
}

void Session::onReadyRead()
{
    readReplies();
    moveLimit();
    report();
}

void Session::readReplies()
{
    char buffer[4096];
    while (m_phase != Phase::Off) {
        const qint64 count = m_socket.read(buffer, sizeof buffer);
        if (count <= 0)
            break;
        m_reader.feed(QByteArrayView(buffer, count));
        while (m_phase != Phase::Off) {
            const auto reply = m_reader.next();
            if (!reply)
                fail(SmtpErrorNumber::Unreadable, reply.error());
            else if (*reply)
                takeReply(**reply);
            else
                break;
        }
    }
}

void Session::takeReply(const WireReply &reply)
{
    switch (m_phase) {
    case Phase::Greeting:
        if (reply.code == 220)
            hello(Phase::Ehlo, u"greeted"_s);
        else
            fail(SmtpErrorNumber::ServerRefuses, refusal(reply));
        break;
    case Phase::Ehlo:
    case Phase::Helo:
        takeHelloReply(reply);
        break;
    case Phase::Mail:
        if (!m_transaction->take(reply))
            fail(SmtpErrorNumber::Unreadable, u"the server's replies are out of step"_s);
        else
            pump();
        break;
    case Phase::Quit:
        fail(SmtpErrorNumber::Closed, u"the session is over"_s);
        break;
    case Phase::Connecting:
    case Phase::Ready: // nobody asked: the server is about to close, or out of step
    case Phase::Off:
        fail(SmtpErrorNumber::Closed,
             u"the server ends the session: "_s + reply.toServerReply(SmtpVerb::None).toText());
        break;
    }
}

void Session::hello(Phase phase, const QString &reason)
{
    enter(phase, reason);
    write((phase == Phase::Ehlo ? "EHLO " : "HELO ") +
          ehloName(m_hostName, m_socket.localAddress()) + "\r\n");
}

void Session::takeHelloReply(const WireReply &reply)
{
    if (reply.code / 100 == 2) {
        if (m_phase == Phase::Ehlo)
            m_extensions = Extensions::fromEhlo(reply.lines);
        m_extensions.chunking = m_extensions.chunking && m_mayChunk;
        becomeReady(u"the server is willing"_s);
    } else if (m_phase == Phase::Ehlo && reply.code != 421) {
        hello(Phase::Helo, u"EHLO is refused"_s); // RFC 5321, section 4.1.4
    } else {
        fail(SmtpErrorNumber::ServerRefuses, refusal(reply));
    }
}

void Session::becomeReady(const QString &reason)
{
    enter(Phase::Ready, reason);
    m_hasNews = true;
}

void Session::send(const Letter &letter)
{
    m_transaction.emplace(letter, m_extensions, m_needsReset);
    enter(Phase::Mail, u"a message is handed over"_s);
    pump();
    moveLimit();
    report();
}

void Session::pump()
{
    const QList<QByteArray> pieces = m_transaction->takeBytes();
    if (!pieces.isEmpty()) {
        for (const QByteArray &piece : pieces) {
            m_unwritten += piece.size();
            m_socket.write(piece);
        }
        m_socket.flush(); // all pieces at once, without a turn of the event loop
    }
    // A failure inside flush has settled the message already.
    if (m_transaction && m_transaction->isSettled()) {
        const QString reason = m_transaction->reasonToEnd();
        settle();
        if (reason.isEmpty())
            becomeReady(u"the message is settled"_s);
        else
            fail(SmtpErrorNumber::Closed, reason);
    }
}

void Session::settle()
{
    m_settlement = Settlement{m_transaction->outcome(), m_transaction->replies(),
                              m_transaction->chunkingFailed()};
    m_needsReset = m_settlement->outcome != Transaction::Outcome::Accepted;
    m_transaction.reset();
    m_hasNews = true;
}

void Session::fail(SmtpErrorNumber number, const QString &reason)
{
    if (m_phase == Phase::Off)
        return;
    m_fault = {number, reason};
    if (m_transaction) {
        const QString farewell = m_transaction->reasonToEnd();
        if (!farewell.isEmpty())
            m_fault.reason = farewell;
        m_transaction->cut(m_unwritten == 0);
        settle();
    }
    const bool isQuitting = m_phase == Phase::Quit;
    enter(Phase::Off, reason);
    m_hasNews = true;
    m_watchdog.stop();
    m_socket.abort();
    if (isQuitting)
        deleteLater();
}

void Session::quit()
{
    disconnect(this, &Session::reported, nullptr, nullptr);
    if (m_phase == Phase::Ready) {
        enter(Phase::Quit, u"the session is no longer wanted"_s);
        m_watchdog.start(m_limits.quit);
        write("QUIT\r\n"_qba);
    } else {
        fail(SmtpErrorNumber::Closed, u"the session is no longer wanted"_s);
        deleteLater();
    }
}

void Session::write(const QByteArray &bytes)
{
    m_unwritten += bytes.size();
    m_socket.write(bytes);
    m_socket.flush();
}

void Session::onBytesWritten(qint64 count)
{
    m_unwritten -= count;
    moveLimit();
}

void Session::onSocketError()
{
    readReplies(); // what came before the end still counts
    fail(m_phase == Phase::Connecting ? SmtpErrorNumber::CannotConnect : SmtpErrorNumber::Closed,
         m_phase == Phase::Connecting || m_socket.error() != QAbstractSocket::RemoteHostClosedError
             ? u"the connection failed: "_s + m_socket.errorString()
             : u"the server closed the connection"_s);
    report();
}

void Session::onLimit()
{
    fail(SmtpErrorNumber::TimedOut, u"the server was silent for too long"_s);
    report();
}

/// Connection, TLS and greeting share one limit; from then on each reply has its own.
void Session::moveLimit()
{
    switch (m_phase) {
    case Phase::Ehlo:
    case Phase::Helo:
        m_watchdog.start(m_limits.hello);
        break;
    case Phase::Mail:
        m_watchdog.start(m_unwritten > 0 ? m_limits.dataBlock
                                         : m_limits.forReplyTo(m_transaction->awaited()));
        break;
    case Phase::Ready:
        m_watchdog.stop();
        break;
    case Phase::Off:
    case Phase::Connecting:
    case Phase::Greeting:
    case Phase::Quit:
        break;
    }
}

void Session::report()
{
    if (!std::exchange(m_hasNews, false))
        return;
    Q_EMIT reported(std::exchange(m_settlement, std::nullopt));
}
