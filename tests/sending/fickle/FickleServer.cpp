#include "FickleServer.h"

#include <QTcpSocket>
#include <QTimer>

#include <array>
#include <functional>

void showValue(Whim whim, std::ostream &out)
{
    static constexpr std::array Names = {
        "Accept",       "RefuseForNow",  "RefuseForGood",     "EndService", "Linger", "Drop",
        "DropWhenDone", "AnswerAndDrop", "AnswerHalfAndDrop", "Babble",     "Silence"};
    out << Names.at(static_cast<std::size_t>(whim));
}

/// One connection; it ends itself with its socket.
class FickleServer::Connection : public QObject
{
public:
    Connection(FickleServer &server, QTcpSocket &socket)
        : QObject(&socket), m_server(server), m_socket(socket)
    {
        connect(&socket, &QTcpSocket::readyRead, this, [this] { serve(); });
        answer("220 fickle.example", {});
        serve();
    }

private:
    /// Handles what is there, command by command.
    void serve()
    {
        while (!m_isStill && step()) {
        }
    }

    /// Whether something could be done.
    bool step()
    {
        if (m_binaryLeft > 0) {
            m_binaryLeft -= m_socket.read(m_binaryLeft).size();
            if (m_binaryLeft > 0)
                return false;
            endOfContent();
            return true;
        }
        if (!m_socket.canReadLine())
            return false;
        const QByteArray line = m_socket.readLine();
        if (m_isInContent) {
            if (line == ".\r\n") {
                m_isInContent = false;
                endOfContent();
            }
            return true;
        }
        handle(line.chopped(2));
        return true;
    }

    void handle(const QByteArray &line)
    {
        if (line.startsWith("EHLO")) {
            QByteArray reply = "250-fickle.example\r\n";
            if (m_server.m_pipelining)
                reply += "250-PIPELINING\r\n";
            if (m_server.m_chunking)
                reply += "250-CHUNKING\r\n";
            answer(reply + "250 8BITMIME", {});
        } else if (line.startsWith("MAIL FROM:")) {
            reset(); // RFC 5321, section 4.1.1.2: whatever went before
            answer("250 2.1.0 Ok", [this] { m_hasSender = true; });
        } else if (line.startsWith("RCPT TO:<")) {
            const QByteArray address = line.sliced(9).chopped(1);
            if (m_hasSender)
                answer("250 2.1.5 Ok", [this, address] { m_recipients.append(address); });
            else
                say("503 5.5.1 MAIL first");
        } else if (line == "DATA") {
            if (m_recipients.isEmpty())
                say("503 5.5.1 RCPT first");
            else
                answer("354 Go ahead", [this] { m_isInContent = true; });
        } else if (line.startsWith("BDAT ") && line.endsWith(" LAST")) {
            m_binaryLeft = line.sliced(5).chopped(5).toLongLong();
        } else if (line == "RSET") {
            answer("250 2.0.0 Ok", [this] { reset(); });
        } else if (line == "QUIT") {
            answer("221 2.0.0 Bye", {});
        } else {
            answer("250 Ok", {});
        }
    }

    void endOfContent()
    {
        const QList<QByteArray> recipients = std::exchange(m_recipients, {});
        reset();
        if (recipients.isEmpty()) {
            say("503 5.5.1 RCPT first");
            return;
        }
        answer(
            "250 2.0.0 Taken",
            [this, recipients] {
                for (const QByteArray &address : recipients)
                    ++m_server.m_delivered[address];
            },
            [this, recipients] {
                for (const QByteArray &address : recipients)
                    m_server.m_confirmed.insert(address);
            });
    }

    void reset()
    {
        m_hasSender = false;
        m_recipients.clear();
    }

    /// Answers by a whim; `done` is done when what was asked for is, `told` when the reply is sent.
    void answer(const QByteArray &reply, const std::function<void()> &done,
                const std::function<void()> &told = {})
    {
        const auto accept = [=, this] {
            if (done)
                done();
            if (told)
                told();
            say(reply);
        };
        switch (m_server.nextWhim()) {
        case Whim::Accept:
            accept();
            break;
        case Whim::RefuseForNow:
            say("451 4.3.0 Not now");
            break;
        case Whim::RefuseForGood:
            say("550 5.7.1 No");
            break;
        case Whim::EndService:
            say("421 4.3.2 Closing");
            end();
            break;
        case Whim::Linger: {
            constexpr int AMoment = 2; // milliseconds
            m_isStill = true;
            QTimer::singleShot(AMoment, this, [this, accept] {
                m_isStill = false;
                accept();
                serve();
            });
            break;
        }
        case Whim::Drop:
            end();
            break;
        case Whim::DropWhenDone:
            if (done)
                done();
            end();
            break;
        case Whim::AnswerAndDrop:
            accept();
            end();
            break;
        case Whim::AnswerHalfAndDrop:
            if (done)
                done();
            m_socket.write(reply.first(reply.size() / 2));
            end();
            break;
        case Whim::Babble:
            say("Dear client, how are you?");
            break;
        case Whim::Silence:
            m_isStill = true;
            break;
        }
    }

    void say(const QByteArray &reply) { m_socket.write(reply + "\r\n"); }

    void end()
    {
        m_isStill = true;
        m_socket.disconnectFromHost();
    }

    FickleServer &m_server;
    QTcpSocket &m_socket;
    bool m_isStill = false; ///< nothing is read for now, or ever
    bool m_hasSender = false;
    QList<QByteArray> m_recipients;
    bool m_isInContent = false;
    qint64 m_binaryLeft = 0;
};

FickleServer::FickleServer(std::deque<Whim> whims, bool pipelining, bool chunking)
    : m_whims(std::move(whims)), m_pipelining(pipelining), m_chunking(chunking)
{
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *const socket = nextPendingConnection()) {
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            new Connection(*this, *socket);
        }
    });
    listen(QHostAddress::LocalHost);
}

Whim FickleServer::nextWhim()
{
    if (m_whims.empty())
        return Whim::Accept;
    const Whim whim = m_whims.front();
    m_whims.pop_front();
    return whim;
}
