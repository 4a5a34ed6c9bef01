#include "smtp/TestEncryption.h"

#include "smtp/Dialogue.h"
#include "smtp/Scripts.h"

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString Folder = QStringLiteral(SORVANTA_CERTIFICATES "/");

void show(Dialogue &dialogue, const QString &certificate)
{
    dialogue.server.useCertificate(Folder + certificate);
}

QByteArray fingerprintOfFile(const QString &certificate)
{
    return QSslCertificate::fromPath(Folder + certificate + u".pem"_s)
        .constFirst()
        .digest(QCryptographicHash::Sha256);
}

const QString Connect = u"E: Connect\n"_s;
const QString Greeted = Connect + opening(Mode::Plain, Point::Ehlo);
const QString OffersTls = Connect + startingTls();
const QString Encrypted = Connect + encryptedOpening();
const QString SendAndQuit = u"E< ready\nE: Send\n"_s + message(Mode::Plain) + uR"(S: 250 queued
E< sent: 250 queued
E< ready
E: Disconnect
C: QUIT
S: 221 bye
C: <closes>
)"_s;

} // namespace

void TestEncryption::initTestCase()
{
    QVERIFY(QSslSocket::supportsSsl());
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(Folder + u"ca.pem"_s);
    QSslConfiguration::setDefaultConfiguration(configuration);
}

void TestEncryption::dialogue_data()
{
    using Port = Dialogue::Port;
    QTest::addColumn<Port>("port");
    QTest::addColumn<QString>("script");

    QTest::newRow("TLS from the first byte") << Port::Submissions << uR"(
E: Connect
C: <connects>
C: <encrypts>
S: 220 ready
C: EHLO [127.0.0.1]
S: 250 server.example
)"_s + SendAndQuit;
    QTest::newRow("STARTTLS when it is offered")
        << Port::Other << Encrypted + u"S: 250 server.example\n"_s + SendAndQuit;
    QTest::newRow("STARTTLS on port 587")
        << Port::Submission << Encrypted + u"S: 250 server.example\n"_s + SendAndQuit;
    QTest::newRow("no STARTTLS, no login: in the clear on port 587")
        << Port::Submission << Greeted + u"S: 250 server.example\n"_s + SendAndQuit;
    QTest::newRow("extensions from before the handshake are forgotten") << Port::Other << uR"(
E: Connect
C: <connects>
S: 220 ready
C: EHLO [127.0.0.1]
S: 250-server.example
S: 250-PIPELINING
S: 250-CHUNKING
S: 250-SIZE 1
S: 250 STARTTLS
C: STARTTLS
S: <encrypts>
C: <encrypts>
C: EHLO [127.0.0.1]
S: 250 server.example
)"_s + SendAndQuit;
    QTest::newRow("a reply injected before the handshake is refused")
        << Port::Other << OffersTls + u"S: <injects>\nC: <closes>\nE< error: cannot encrypt\n"_s;
    QTest::newRow("the server does not begin what it offers")
        << Port::Other
        << OffersTls + u"S: 454 TLS not available\nC: <closes>\nE< error: cannot encrypt\n"_s;
    QTest::newRow("the server offers STARTTLS and speaks no TLS")
        << Port::Other
        << OffersTls + u"S: <talks on>\nC: <hello and closes>\nE< error: cannot encrypt\n"_s;
}

void TestEncryption::dialogue()
{
    QFETCH(Dialogue::Port, port);
    QFETCH(QString, script);
    Dialogue dialogue({}, port);
    show(dialogue, u"good"_s);
    if (port == Dialogue::Port::Submissions)
        dialogue.server.encryptAtOnce();
    QCOMPARE(dialogue.play(script), QString());
}

void TestEncryption::certificate_data()
{
    using Port = Dialogue::Port;
    QTest::addColumn<QString>("certificate");
    QTest::addColumn<Port>("port");
    QTest::addColumn<QString>("user");
    QTest::addColumn<bool>("isTrusted");
    QTest::addColumn<QString>("problem"); ///< empty: accepted

    const QHash<QString, QString> problems{
        {u"expired"_s, u"it expired on 31 December 2020"_s},
        {u"other-name"_s, u"it is for other.example, not for 127.0.0.1"_s},
        {u"self-signed"_s, u"it is signed by nobody but itself, so that its issuer is unknown"_s},
        {u"unknown-issuer"_s, u"its issuer, An authority that nobody knows, is unknown to this "
                              u"computer"_s}};
    QTest::newRow("good") << u"good"_s << Port::Submission << QString() << false << QString();
    for (auto problem = problems.begin(); problem != problems.end(); ++problem) {
        const QString &name = problem.key();
        QTest::addRow("%s", qPrintable(name))
            << name << Port::Submission << QString() << false << problem.value();
        QTest::addRow("%s, on a port without rules", qPrintable(name))
            << name << Port::Other << QString() << false << problem.value();
        QTest::addRow("%s, trusted by the user", qPrintable(name))
            << name << Port::Submission << QString() << true << QString();
        QTest::addRow("%s, between mail servers", qPrintable(name))
            << name << Port::Relay << QString() << false << QString();
        QTest::addRow("%s, on port 25 with a login", qPrintable(name))
            << name << Port::Relay << u"anna"_s << false << problem.value();
    }
}

void TestEncryption::certificate()
{
    QFETCH(QString, certificate);
    QFETCH(Dialogue::Port, port);
    QFETCH(QString, user);
    QFETCH(bool, isTrusted);
    QFETCH(QString, problem);
    Dialogue dialogue({}, port);
    show(dialogue, certificate);
    dialogue.fakes.accounts.known.user = user;
    if (isTrusted)
        dialogue.fakes.accounts.known.trustedCertificates = {fingerprintOfFile(certificate)};
    if (problem.isEmpty()) {
        QCOMPARE(dialogue.play(Encrypted + u"S: 250 server.example\n"_s + SendAndQuit), QString());
        return;
    }
    QString description;
    connect(&dialogue.client, &Smtp::SmtpError, this,
            [&](qint32, const QString &text) { description = text; });
    QCOMPARE(
        dialogue.play(OffersTls + u"S: <encrypts>\nC: <closes>\nE< error: certificate refused\n"_s),
        QString());
    QCOMPARE(description,
             u"127.0.0.1:%1: the server's certificate cannot be trusted: %2; SHA-256 fingerprint "
             u"%3"_s.arg(QString::number(dialogue.server.port()), problem,
                         fingerprintText(fingerprintOfFile(certificate))));
}

void TestEncryption::certificateOfAnotherHostIsNotTrustedForThisOne()
{
    Dialogue dialogue({}, Dialogue::Port::Submission);
    show(dialogue, u"self-signed"_s);
    dialogue.fakes.accounts.known.trustedCertificates = {fingerprintOfFile(u"expired"_s)};
    QCOMPARE(
        dialogue.play(OffersTls + u"S: <encrypts>\nC: <closes>\nE< error: certificate refused\n"_s),
        QString());
}

void TestEncryption::fingerprints()
{
    const QByteArray bytes = fingerprintOfFile(u"good"_s);
    const QString text = fingerprintText(bytes);
    QCOMPARE(text.size(), 32 * 3 - 1);
    QCOMPARE(fingerprintOf(text), bytes);
    QCOMPARE(fingerprintOf(text.toLower().remove(u':')), bytes);
    QCOMPARE(fingerprintOf(u' ' + text + u'\n'), bytes);
    QCOMPARE(fingerprintOf(text.chopped(3)), QByteArray());
    QCOMPARE(fingerprintOf(text + u":00"_s), QByteArray());
    QCOMPARE(fingerprintOf(QString(text).replace(0, 1, u'X')), QByteArray());
    QCOMPARE(fingerprintOf({}), QByteArray());
}

void TestEncryption::refusedCertificateIsReadableInsideTheErrorOnly()
{
    Dialogue dialogue({}, Dialogue::Port::Submission);
    show(dialogue, u"other-name"_s);
    std::optional<ServerCertificate> refused;
    connect(&dialogue.client, &Smtp::SmtpError, this,
            [&] { refused = dialogue.client.refusedCertificate(); });
    QCOMPARE(
        dialogue.play(OffersTls + u"S: <encrypts>\nC: <closes>\nE< error: certificate refused\n"_s),
        QString());
    QVERIFY(refused);
    QCOMPARE(refused->standing, ServerCertificate::Standing::Refused);
    QCOMPARE(refused->fingerprint, fingerprintOfFile(u"other-name"_s));
    QCOMPARE(refused->owner, u"other.example"_s);
    QCOMPARE(refused->names, QStringList{u"other.example"_s});
    QCOMPARE(refused->issuer, u"Authority of the tests"_s);
    QCOMPARE(refused->validUntil, QDateTime({2099, 12, 31}, {23, 59, 59}, Qt::UTC));
    QVERIFY(!dialogue.client.refusedCertificate());
}

void TestEncryption::startTlsIsRemembered()
{
    Dialogue dialogue;
    show(dialogue, u"good"_s);
    QCOMPARE(dialogue.play(Encrypted + u"S: 250 server.example\n"_s + SendAndQuit), QString());
    QCOMPARE(dialogue.fakes.accounts.known.startTlsPorts, QList<quint16>{dialogue.server.port()});
    QCOMPARE(dialogue.play(Greeted + u"S: 250 server.example\nC: <closes>\n"_s +
                           u"E< error: no encryption\n"_s),
             QString());
    // Nor is a server that speaks HELO only.
    QCOMPARE(dialogue.play(Greeted + u"S: 500 what?\nC: HELO [127.0.0.1]\nS: 250 hello\n"_s +
                           u"C: <closes>\nE< error: no encryption\n"_s),
             QString());
}

void TestEncryption::messageCutOnAnEncryptedLine_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("before the content: it is handed over once more") << uR"(
S: 250-server.example
S: 250 SIZE
E< ready
E: Send
C: MAIL FROM:<sender@example.org> SIZE=<size>
S: <closes>
)"_s + encryptedOpening() + uR"(
S: 250 server.example
C: MAIL FROM:<sender@example.org>
S: 550 no
E< refused: 550 no
E< ready
)"_s;
    QTest::newRow("after the content: in doubt")
        << u"S: 250 server.example\nE< ready\nE: Send\n"_s + message(Mode::Plain) +
               u"S: <closes>\nE< error: in doubt, perhaps accepted: -\n"_s;
}

void TestEncryption::messageCutOnAnEncryptedLine()
{
    QFETCH(QString, script);
    Dialogue dialogue;
    show(dialogue, u"good"_s);
    QCOMPARE(dialogue.play(Encrypted + script), QString());
}

void TestEncryption::plainOldTlsIsRefused()
{
    Dialogue dialogue;
    show(dialogue, u"good"_s);
    dialogue.server.useOldTlsOnly();
    QCOMPARE(dialogue.play(OffersTls + u"S: <encrypts>\nC: <closes>\nE< error: cannot encrypt\n"_s),
             QString());
}
