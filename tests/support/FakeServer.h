#pragma once

#include <QByteArray>
#include <QSslConfiguration>
#include <QString>
#include <QTcpServer>

#include <chrono>
#include <functional>

class QSslSocket;

/// Listens, and makes connections that can be encrypted.
class TlsListener : public QTcpServer
{
public:
    QSslConfiguration tls;       ///< with the server's certificate and key
    bool encryptsAtOnce = false; ///< TLS from the first byte

protected:
    void incomingConnection(qintptr descriptor) override;
};

/// A server on a free port of this machine that does what the test says, with three verbs: it says
/// something, the client must say something, nobody says anything. Closing a connection leaves a
/// mark in the stream, so that its place among the bytes counts too. What the client says is held
/// against the script byte by byte. A verb that can fail returns what went wrong, empty when
/// nothing did.
class FakeServer
{
public:
    /// Stands in the stream where the client closed the connection.
    static constexpr QByteArrayView Closed = "<closed>";

    FakeServer();
    FakeServer(const FakeServer &) = delete;
    FakeServer &operator=(const FakeServer &) = delete;
    ~FakeServer();

    [[nodiscard]] quint16 port() const { return m_server.serverPort(); }
    /// How many connections the script has taken.
    [[nodiscard]] int connectionCount() const { return m_connectionCount; }

    /// The client connects; from here on this is the connection spoken of, and what the client
    /// says in an earlier one counts no more.
    [[nodiscard]] QString takeConnection();
    /// The client says exactly this.
    [[nodiscard]] QString hear(const QByteArray &bytes);
    /// The client has said nothing that the script does not know, and says nothing more of its own
    /// accord.
    [[nodiscard]] QString silence();
    void say(const QByteArray &bytes);
    void close();

    /// From now on the server shows that certificate: `path` and ".pem", its key `path` and ".key".
    void useCertificate(const QString &path);
    /// SHA-256 of that certificate.
    [[nodiscard]] QByteArray fingerprint() const;
    /// A port on which nobody listens.
    [[nodiscard]] static quint16 closedPort();
    /// Offers nothing newer than TLS 1.1.
    void useOldTlsOnly();
    /// The client says anything at all, is told that, and closes the connection.
    [[nodiscard]] QString hearGarbageAndEnd(const QByteArray &words);
    /// Connections to come are encrypted from the first byte.
    void encryptAtOnce() { m_server.encryptsAtOnce = true; }
    /// Says that, and takes what comes next for the client's side of a TLS handshake.
    void encrypt(const QByteArray &lastWords);
    /// The handshake succeeds.
    [[nodiscard]] QString awaitEncryption();

    /// Lets client and server do all that they can do without waiting for a timer.
    static void settle();
    /// Runs the event loop until it is true; false when it does not become so.
    [[nodiscard]] static bool waitUntil(const std::function<bool()> &isTrue);

private:
    TlsListener m_server;
    QSslSocket *m_connection = nullptr;
    QByteArray m_heard; ///< what the client said and the script has not yet asked for
    int m_connectionCount = 0;
};
