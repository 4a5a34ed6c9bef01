#include "support/FakeServer.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QHostAddress>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
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

void TlsListener::incomingConnection(qintptr descriptor)
{
    auto *socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    socket->setSslConfiguration(tls);
    if (encryptsAtOnce)
        socket->startServerEncryption();
    addPendingConnection(socket);
}

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
    m_connection = static_cast<QSslSocket *>(m_server.nextPendingConnection());
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
    QObject::connect(m_connection, &QSslSocket::readyRead, m_connection, read);
    QObject::connect(m_connection, &QSslSocket::disconnected, m_connection, close);
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

void FakeServer::useCertificate(const QString &path)
{
    QFile key(path + u".key"_s);
    if (!key.open(QIODevice::ReadOnly))
        qFatal("the key of a test's certificate cannot be read");
    m_server.tls = QSslConfiguration::defaultConfiguration();
    m_server.tls.setLocalCertificateChain(QSslCertificate::fromPath(path + u".pem"_s));
    m_server.tls.setPrivateKey(QSslKey(&key, QSsl::Ec));
}

void FakeServer::encrypt(const QByteArray &lastWords)
{
    say(lastWords);
    m_connection->setSslConfiguration(m_server.tls);
    m_connection->startServerEncryption();
}

QString FakeServer::awaitEncryption()
{
    const auto isOver = [this] {
        return m_connection->isEncrypted() ||
               m_connection->state() != QAbstractSocket::ConnectedState;
    };
    return waitUntil(isOver) && m_connection->isEncrypted()
               ? QString()
               : u"the encryption does not come about: "_s + m_connection->errorString();
}

void FakeServer::useOldTlsOnly()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    m_server.tls.setProtocol(QSsl::TlsV1_1);
    QT_WARNING_POP
}

QString FakeServer::hearGarbageAndEnd(const QByteArray &words)
{
    if (!waitUntil([this] { return !m_heard.isEmpty(); }))
        return u"the client says nothing"_s;
    say(words);
    if (!waitUntil([this] { return m_heard.endsWith(Closed); }))
        return u"the client does not close the connection"_s;
    m_heard.clear();
    return {};
}

QByteArray FakeServer::fingerprint() const
{
    return m_server.tls.localCertificate().digest(QCryptographicHash::Sha256);
}

quint16 FakeServer::closedPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}
