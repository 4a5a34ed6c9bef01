// From the connection to a session that can take a message: encryption (RFC 3207, RFC 8314) and
// login (RFC 4954).

#include "smtp/client/Session.h"

#include "smtp/client/Certificates.h"
#include "smtp/client/HostName.h"
#include "smtp/client/LoginRefusal.h"

#include <QPointer>
#include <QSslCipher>
#include <QSslConfiguration>

using namespace Qt::StringLiterals;

namespace {

/// So many times a server is told a wrong password; many block the account after more.
constexpr int MostLoginRefusals = 3;

/// A server's refusal in plain words.
QString refusal(const WireReply &reply)
{
    return u"the server refuses: "_s + reply.toServerReply(SmtpVerb::None).toText();
}

} // namespace

void Session::reach(ServerStep step)
{
    m_report.reached = step;
    Q_EMIT progressed();
}

void Session::onConnected()
{
    // The data of one message are written in several pieces: they must not wait for each other's
    // acknowledgement.
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_report.address = m_socket->peerAddress().toString();
    m_trace.note(u"connected to "_s + m_report.address);
    if (m_server.port == m_from.ports.submissions) {
        beginTls();
    } else {
        enter(Phase::Greeting, u"connected"_s);
        reach(ServerStep::Connected);
    }
}

void Session::takeGreeting(const WireReply &reply)
{
    m_report.greeting = reply.toServerReply(SmtpVerb::Greeting).text;
    if (reply.code == 220)
        hello(Phase::Ehlo, u"greeted"_s);
    else
        fail(SmtpErrorNumber::ServerRefuses, refusal(reply));
}

void Session::hello(Phase phase, const QString &reason)
{
    enter(phase, reason);
    say((phase == Phase::Ehlo ? "EHLO " : "HELO ") +
        ehloName(m_from.hostName, m_socket->localAddress()) + "\r\n");
}

void Session::takeHelloReply(const WireReply &reply)
{
    if (reply.code / 100 == 2) {
        if (m_phase == Phase::Ehlo)
            m_extensions = Extensions::fromEhlo(reply.lines);
        afterHello();
    } else if (m_phase == Phase::Ehlo && reply.code != 421) {
        hello(Phase::Helo, u"EHLO is refused"_s); // RFC 5321, section 4.1.4
    } else {
        fail(SmtpErrorNumber::ServerRefuses, refusal(reply));
    }
}

void Session::afterHello()
{
    if (!m_socket->isEncrypted() && m_extensions.startTls) {
        m_from.accounts.rememberStartTls(m_server);
        enter(Phase::StartTls, u"the server offers encryption"_s);
        say("STARTTLS\r\n"_qba);
        return;
    }
    if (!m_socket->isEncrypted() && m_account.startTlsPorts.contains(m_server.port)) {
        fail(SmtpErrorNumber::NoEncryption,
             u"the server used to offer encryption (STARTTLS) and does not offer it any more; "
             u"somebody may be listening in between, so nothing was sent"_s);
        return;
    }
    m_report.extensions = m_extensions.lines;
    m_report.largestMessage = m_extensions.largestMessage;
    m_extensions.pipelining = m_extensions.pipelining && m_account.usePipelining;
    m_extensions.chunking = m_extensions.chunking && m_account.useChunking && m_experience.mayChunk;
    const bool wantsLogin = m_from.ports.wantsLogin(m_server.port) || !m_account.user.isEmpty() ||
                            m_experience.wantsLogin;
    m_report.login = m_extensions.auth ? LoginState::NotWanted : LoginState::NotOffered;
    if (m_extensions.auth && wantsLogin)
        logIn();
    else
        becomeReady(u"the server is willing"_s);
}

void Session::beginTls()
{
    // What came before the handshake may be anybody's: it must not be taken for the server's word
    // on the encrypted line (RFC 3207, section 6).
    if (!m_reader.isEmpty() || m_socket->bytesAvailable() > 0) {
        fail(SmtpErrorNumber::CannotEncrypt,
             u"the server went on talking before the encryption began; somebody may have put "
             u"words into its mouth, so nothing was sent"_s);
        return;
    }
    if (!QSslSocket::supportsSsl()) {
        fail(SmtpErrorNumber::CannotEncrypt, u"TLS is not installed on this computer"_s);
        return;
    }
    enter(Phase::Tls, u"encryption begins"_s);
    m_extensions = {};
    m_watchdog.start(m_from.limits.opening);
    QSslConfiguration configuration = m_socket->sslConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater); // RFC 8997
    configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
    m_socket->setSslConfiguration(configuration);
    m_socket->setPeerVerifyName(m_server.host);
    m_socket->startClientEncryption();
}

void Session::onSslErrors(const QList<QSslError> &errors)
{
    using Standing = ServerCertificate::Standing;
    ServerCertificate certificate = describe(m_socket->peerCertificate(), errors, m_server.host);
    const bool staysWithoutLogin =
        m_server.port == m_from.ports.relay && m_account.user.isEmpty() && !m_experience.wantsLogin;
    if (m_account.trustedCertificates.contains(certificate.fingerprint))
        certificate.standing = Standing::Trusted;
    else
        certificate.standing = staysWithoutLogin ? Standing::Unchecked : Standing::Refused;
    m_report.certificate = certificate;
    // A refusal is the handshake's failure, which comes as the socket's next error.
    if (certificate.standing != Standing::Refused)
        m_socket->ignoreSslErrors(errors);
}

void Session::refuseCertificate()
{
    ServerCertificate &certificate = *m_report.certificate;
    certificate.standing = ServerCertificate::Standing::Refused;
    fail(SmtpErrorNumber::CertificateRefused,
         u"the server's certificate cannot be trusted: %1; SHA-256 fingerprint %2"_s.arg(
             certificate.problem, fingerprintText(certificate.fingerprint)));
}

void Session::onEncrypted()
{
    if (!m_report.certificate)
        m_report.certificate = describe(m_socket->peerCertificate(), {}, m_server.host);
    const QSslCipher cipher = m_socket->sessionCipher();
    m_report.encryption = cipher.protocolString() + u", "_s + cipher.name();
    m_trace.note(u"encrypted: "_s + m_report.encryption);
    if (m_server.port == m_from.ports.submissions) {
        enter(Phase::Greeting, u"encrypted"_s);
        reach(ServerStep::Encrypted);
    } else {
        reach(ServerStep::Encrypted);
        hello(Phase::Ehlo, u"encrypted"_s);
        moveLimit();
    }
    onReadyRead(); // the greeting may be here already
}

bool Session::mayCarryPassword(const QHostAddress &server, bool isEncrypted)
{
    return isEncrypted || server.isLoopback();
}

void Session::logIn()
{
    if (!mayCarryPassword(m_socket->peerAddress(), m_socket->isEncrypted())) {
        fail(SmtpErrorNumber::NoEncryption,
             u"the server wants a login and does not offer encryption; no password is sent on a "
             u"line that others can read"_s);
    } else if (m_report.certificate &&
               m_report.certificate->standing == ServerCertificate::Standing::Unchecked) {
        refuseCertificate();
    } else if (m_login) {
        authenticate();
    } else {
        lookForLogin({});
    }
}

void Session::lookForLogin(const QString &refusal)
{
    enter(Phase::Login, u"a login is wanted"_s);
    moveLimit();
    const quint32 search = ++m_loginSearch;
    const auto stands = [session = QPointer(this), search] {
        return session && session->m_loginSearch == search;
    };
    Q_EMIT loginAwaited(true);
    m_from.logins.find({m_server, m_loginRefusals, refusal, stands},
                       [this, stands](const LoginAnswer &answer) {
                           if (!stands())
                               return;
                           ++m_loginSearch;
                           takeLogin(answer);
                           moveLimit();
                           report();
                       });
}

void Session::takeLogin(const LoginAnswer &answer)
{
    Q_EMIT loginAwaited(false);
    if (!answer) {
        failLogin(answer.error());
        return;
    }
    m_login = *answer;
    m_secrets.learn(*answer);
    if (m_socket->state() == QAbstractSocket::ConnectedState)
        authenticate();
    else
        connectToServer();
}

void Session::authenticate()
{
    const auto exchange = AuthExchange::begin(*m_login, m_extensions);
    m_report.loginUser = m_login->user;
    if (!exchange) {
        failLogin(exchange.error());
        return;
    }
    m_exchange = *exchange;
    m_report.loginMechanism = QString::fromLatin1(exchange->mechanism());
    enter(Phase::Auth, u"a login is known"_s);
    m_trace.client(u"AUTH %1 ***"_s.arg(m_report.loginMechanism));
    write(exchange->command());
}

void Session::takeAuthReply(const WireReply &reply)
{
    const ServerReply said = reply.toServerReply(SmtpVerb::Auth);
    if (reply.code == 334) {
        answerChallenge();
    } else if (reply.code / 100 == 2) {
        m_exchange.reset();
        m_loginRefusals = 0;
        m_report.login = LoginState::Accepted;
        m_from.logins.accepted(m_server, *m_login);
        becomeReady(u"logged in"_s);
    } else {
        loginRefused(said);
    }
}

void Session::answerChallenge()
{
    const auto answer = m_exchange->answer();
    if (answer) {
        m_trace.client(u"***"_s);
        write(*answer);
    } else {
        failLogin(u"the server asks for more than a login by %1 has to say"_s.arg(
            m_report.loginMechanism));
    }
}

void Session::loginRefused(const ServerReply &reply)
{
    const LoginRefusal refusal = LoginRefusal::of(reply);
    m_exchange.reset();
    ++m_loginRefusals;
    // A server that cannot check it just now says nothing about the login itself.
    if (reply.code >= 500)
        m_from.logins.refused(m_server, *m_login);
    m_login.reset();
    if (refusal.isFinal || m_loginRefusals >= MostLoginRefusals)
        failLogin(refusal.text);
    else
        lookForLogin(refusal.text);
}

void Session::failLogin(const QString &reason)
{
    m_report.login = LoginState::Failed;
    fail(SmtpErrorNumber::LoginFailed, reason);
}

void Session::becomeReady(const QString &reason)
{
    if (m_report.reached != ServerStep::Ready)
        reach(ServerStep::Ready);
    if (!m_heldLetter) {
        enter(Phase::Ready, reason);
        m_hasNews = true;
    } else if (m_reader.isEmpty()) {
        begin(*std::exchange(m_heldLetter, std::nullopt));
    } else {
        // It would be taken for an answer to what is not yet said.
        fail(SmtpErrorNumber::Unreadable, u"the server's replies are out of step"_s);
    }
}
