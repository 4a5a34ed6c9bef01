// One connection: its socket, its limits, its end, and a message in it. How it becomes ready is in
// SessionOpening.cpp.

#include "smtp/client/Session.h"

#include "smtp/client/LoginRefusal.h"

#include <QLoggingCategory>
#include <QNetworkProxy>

#include <utility>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(sessionTrace, "sorvanta.smtp.session", QtInfoMsg)

Session::Session(const ClientSurroundings &from, QObject *parent)
    : QObject(parent),
      m_from(from),
      m_watchdog([this] { onLimit(); }),
      m_reader(from.limits),
      m_trace(from.trace)
{}

void Session::enter(Phase phase, const QString &reason)
{
    qCDebug(sessionTrace).noquote()
        << m_server.toText() << m_phase << "->" << phase << ':' << reason;
    m_phase = phase;
}

void Session::open(const ServerAddress &server, const Experience &experience)
{
    m_server = server;
    m_experience = experience;
    m_trace.begin(server);
    connectToServer();
}

void Session::connectToServer()
{
    // Read anew each time: what an earlier connection has taught counts.
    m_account = m_from.accounts.account(m_server.host);
    m_socket = std::make_unique<QSslSocket>();
    connect(m_socket.get(), &QSslSocket::hostFound, this, [this] { reach(ServerStep::Found); });
    connect(m_socket.get(), &QSslSocket::connected, this, &Session::onConnected);
    connect(m_socket.get(), &QSslSocket::readyRead, this, &Session::onReadyRead);
    connect(m_socket.get(), &QSslSocket::errorOccurred, this, &Session::onSocketError);
    connect(m_socket.get(), &QSslSocket::bytesWritten, this, &Session::onBytesWritten);
    connect(m_socket.get(), &QSslSocket::encryptedBytesWritten, this, &Session::moveLimit);
    connect(m_socket.get(), &QSslSocket::sslErrors, this, &Session::onSslErrors);
    connect(m_socket.get(), &QSslSocket::encrypted, this, &Session::onEncrypted);
    m_report = {};
    m_report.server = m_server;
    m_extensions = {};
    m_reader.clear();
    m_unwritten = 0;
    m_needsReset = false;
    enter(Phase::Connecting, u"a session is wanted"_s);
    m_trace.note(u"connecting"_s);
    m_watchdog.start(m_from.limits.opening);
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_socket->connectToHost(m_server.host, m_server.port);
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
    while (isListening()) {
        const qint64 count = m_socket->read(buffer, sizeof buffer);
        if (count <= 0)
            break;
        m_reader.feed(QByteArrayView(buffer, count));
        while (isListening()) {
            auto reply = m_reader.next();
            if (!reply && m_phase == Phase::Login)
                dropConnection();
            else if (!reply)
                fail(SmtpErrorNumber::Unreadable, reply.error());
            else if (*reply)
                takeReply(std::move(**reply));
            else
                break;
        }
    }
}

void Session::takeReply(WireReply reply)
{
    // Beyond this point nothing that the server says can hold a secret.
    reply.lines = m_secrets.hide(reply.lines);
    m_trace.reply(reply);
    switch (m_phase) {
    case Phase::Greeting:
        takeGreeting(reply);
        break;
    case Phase::Ehlo:
    case Phase::Helo:
        takeHelloReply(reply);
        break;
    case Phase::StartTls:
        if (reply.code == 220)
            beginTls();
        else
            fail(SmtpErrorNumber::CannotEncrypt,
                 u"the server does not begin the encryption that it offers: "_s +
                     reply.toServerReply(SmtpVerb::StartTls).toText());
        break;
    case Phase::Auth:
        takeAuthReply(reply);
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
    case Phase::Login: // it does not want to wait; the connection is made anew with the login
        dropConnection();
        break;
    case Phase::Connecting:
    case Phase::Ready: // nobody asked: the server is about to close, or out of step
    case Phase::Tls:
    case Phase::Off:
        fail(SmtpErrorNumber::Closed,
             u"the server ends the session: "_s + reply.toServerReply(SmtpVerb::None).toText());
        break;
    }
}

void Session::send(const Letter &letter)
{
    begin(letter);
    moveLimit();
    report();
}

void Session::begin(const Letter &letter)
{
    m_transaction.emplace(letter, m_extensions, m_needsReset);
    enter(Phase::Mail, u"a message is handed over"_s);
    pump();
}

void Session::pump()
{
    const Outgoing outgoing = m_transaction->takeBytes();
    m_trace.commands(outgoing.commands);
    qint64 contentSize = 0;
    for (const QByteArray &piece : outgoing.content)
        contentSize += piece.size();
    if (contentSize > 0)
        m_trace.client(u"(the message, %1 bytes)"_s.arg(contentSize));
    m_unwritten += outgoing.commands.size() + contentSize;
    if (!outgoing.commands.isEmpty())
        m_socket->write(outgoing.commands);
    for (const QByteArray &piece : outgoing.content)
        m_socket->write(piece);
    if (!outgoing.commands.isEmpty() || contentSize > 0)
        m_socket->flush(); // all pieces at once, without a turn of the event loop
    // A failure inside flush has settled the message already.
    if (m_transaction && m_transaction->isSettled() && !holdForLogin()) {
        const QString reason = m_transaction->reasonToEnd();
        settle();
        if (reason.isEmpty())
            becomeReady(u"the message is settled"_s);
        else
            fail(SmtpErrorNumber::Closed, reason);
    }
}

/// A message that was refused because nobody is logged in is handed over again after a login. True
/// when it is held, or when the session has failed over it.
bool Session::holdForLogin()
{
    const ServerReply wish = m_transaction->loginWish();
    const bool isLoggedIn = m_report.login == LoginState::Accepted;
    if (wish.isEmpty() || m_transaction->outcome() != Transaction::Outcome::Refused ||
        !m_transaction->reasonToEnd().isEmpty())
        return false;
    const LoginRefusal meaning = LoginRefusal::of(wish);
    if (isLoggedIn ? !meaning.isFinal : !m_extensions.auth && wish.code != 530)
        return false;
    m_heldLetter = m_transaction->letter();
    m_transaction.reset();
    m_needsReset = true;
    m_experience.wantsLogin = true;
    if (isLoggedIn || !m_extensions.auth)
        fail(SmtpErrorNumber::LoginFailed, meaning.text);
    else
        logIn();
    return true;
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
        m_transaction->cut(isAllWritten());
        settle();
    }
    const bool isQuitting = m_phase == Phase::Quit;
    const bool wasLookingForLogin = m_phase == Phase::Login;
    enter(Phase::Off, m_fault.reason);
    m_trace.note(m_fault.reason);
    m_report.failure = m_fault.reason;
    m_report.failureNumber = number;
    m_hasNews = true;
    if (wasLookingForLogin)
        endLoginSearch();
    dropConnection();
    if (isQuitting)
        deleteLater();
}

void Session::dropConnection()
{
    m_watchdog.stop();
    m_exchange.reset();
    m_socket->abort();
}

void Session::endLoginSearch()
{
    ++m_loginSearch;
    m_from.logins.dropStale();
}

void Session::quit()
{
    disconnect(this, nullptr, nullptr, nullptr);
    if (m_phase == Phase::Ready) {
        enter(Phase::Quit, u"the session is no longer wanted"_s);
        m_watchdog.start(m_from.limits.quit);
        say("QUIT\r\n"_qba);
    } else {
        fail(SmtpErrorNumber::Closed, u"the session is no longer wanted"_s);
        deleteLater();
    }
}

void Session::withdrawHeld()
{
    if (m_heldLetter) {
        fail(SmtpErrorNumber::LoginFailed, u"the login is no longer wanted"_s);
        report();
    }
}

void Session::say(const QByteArray &line)
{
    m_trace.commands(line);
    write(line);
}

void Session::write(const QByteArray &bytes)
{
    m_unwritten += bytes.size();
    m_socket->write(bytes);
    m_socket->flush();
}

void Session::onBytesWritten(qint64 count)
{
    m_unwritten -= count;
    moveLimit();
}

void Session::onSocketError()
{
    readReplies(); // what came before the end still counts
    if (m_phase == Phase::Login) {
        // It may take somebody longer to find a password than a server waits: the connection is
        // made anew with it.
        dropConnection();
        return;
    }
    const bool isSilent = m_socket->error() == QAbstractSocket::RemoteHostClosedError;
    const QString reason = m_socket->errorString();
    const bool isRefusal = m_report.certificate &&
                           m_report.certificate->standing == ServerCertificate::Standing::Refused;
    if (m_phase == Phase::Tls && isRefusal)
        refuseCertificate();
    else if (m_phase == Phase::Tls)
        fail(SmtpErrorNumber::CannotEncrypt, u"encryption did not come about: "_s + reason);
    else if (m_phase == Phase::Connecting)
        fail(SmtpErrorNumber::CannotConnect, u"the connection failed: "_s + reason);
    else
        fail(SmtpErrorNumber::Closed, isSilent ? u"the server closed the connection"_s
                                               : u"the connection failed: "_s + reason);
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
    case Phase::StartTls:
    case Phase::Auth:
        m_watchdog.start(m_from.limits.hello);
        break;
    case Phase::Mail:
        m_watchdog.start(isAllWritten() ? m_from.limits.forReplyTo(m_transaction->awaited())
                                        : m_from.limits.dataBlock);
        break;
    case Phase::Login: // for as long as a person takes
    case Phase::Ready:
        m_watchdog.stop();
        break;
    case Phase::Off:
    case Phase::Connecting:
    case Phase::Tls:
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
