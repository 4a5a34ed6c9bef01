#include "support/FakeServer.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// Only reached when something is broken.
constexpr std::chrono::seconds LongestWait(20);

/// With visible line ends, and cut to what a person reads.
QString quoted(const QByteArray &bytes)
{
    QByteArray visible = bytes.left(1000);
    visible.replace("\r", "\\r").replace("\n", "\\n\n");
    return u"\""_s + QString::fromUtf8(visible) + u'"';
}

} // namespace

FakeServer::FakeServer()
{
    m_server.listen(QHostAddress::LocalHost);
}

FakeServer::~FakeServer()
{
    m_connection = nullptr; // what is closed from here on is closed by nobody's script
}

void FakeServer::settle()
{
    // Bytes cross the loopback at once; ten turns are more than any chain of reactions takes.
    for (int turn = 0; turn < 10; ++turn) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

bool FakeServer::waitUntil(const std::function<bool()> &isTrue)
{
    settle();     // mostly enough
    QTimer limit; // wakes the loop below
    limit.setSingleShot(true);
    limit.start(LongestWait);
    while (!isTrue() && limit.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return isTrue();
}

QString FakeServer::takeConnection()
{
    if (!m_heard.isEmpty())
        return u"the client said, before it connected anew: "_s + quoted(m_heard);
    if (!waitUntil([this] { return m_server.hasPendingConnections(); }))
        return u"the client does not connect"_s;
    m_connection = m_server.nextPendingConnection();
    m_connection->setSocketOption(QAbstractSocket::LowDelayOption, 1); // see settle
    ++m_connectionCount;
    const auto read = [this, socket = m_connection] {
        if (socket == m_connection)
            m_heard += socket->readAll();
    };
    const auto close = [this, socket = m_connection] {
        if (socket == m_connection)
            (m_heard += socket->readAll()) += Closed;
    };
    QObject::connect(m_connection, &QTcpSocket::readyRead, m_connection, read);
    QObject::connect(m_connection, &QTcpSocket::disconnected, m_connection, close);
    read();
    return {};
}

QString FakeServer::hear(const QByteArray &bytes)
{
    const auto isDecided = [&] {
        return m_heard.size() >= bytes.size() || !bytes.startsWith(m_heard);
    };
    if (!waitUntil(isDecided) || !m_heard.startsWith(bytes))
        return u"the client must say "_s + quoted(bytes) + u" and said "_s + quoted(m_heard);
    m_heard.remove(0, bytes.size());
    return {};
}

QString FakeServer::silence()
{
    settle();
    if (m_heard.isEmpty() && !m_server.hasPendingConnections())
        return {};
    return u"the client must be silent and said "_s + quoted(m_heard) +
           (m_server.hasPendingConnections() ? u" and connected"_s : QString());
}

void FakeServer::say(const QByteArray &bytes)
{
    m_connection->write(bytes);
    m_connection->flush();
}

void FakeServer::close()
{
    m_connection->disconnect();
    m_connection->disconnectFromHost();
    m_connection = nullptr;
}
