#include "smtp/TestSecrecy.h"

#include "smtp/LoginScripts.h"
#include "smtp/client/Secrets.h"

#include <QTest>

using namespace LoginScripts;
using namespace Qt::StringLiterals;

namespace {

using Port = Dialogue::Port;

/// Makes the server show that certificate; from the connection to an encrypted offer of PLAIN.
QString encryptedTo(const QString &certificate, Dialogue &dialogue)
{
    dialogue.server.useCertificate(QStringLiteral(SORVANTA_CERTIFICATES "/") + certificate);
    return u"E: Connect\n"_s + encryptedOpening() + u"S: 250-server.example\nS: 250 AUTH PLAIN\n"_s;
}

} // namespace

// The loopback interface is the one line that nobody else can read, and the only one that a test
// has.
void TestSecrecy::noPasswordOnALineThatOthersCanRead()
{
    QVERIFY(Session::mayCarryPassword(QHostAddress(u"127.0.0.1"_s), false));
    QVERIFY(Session::mayCarryPassword(QHostAddress(u"127.4.5.6"_s), false));
    QVERIFY(Session::mayCarryPassword(QHostAddress(u"::1"_s), false));
    QVERIFY(!Session::mayCarryPassword(QHostAddress(u"192.0.2.1"_s), false));
    QVERIFY(!Session::mayCarryPassword(QHostAddress(u"2001:db8::1"_s), false));
    QVERIFY(!Session::mayCarryPassword(QHostAddress(), false));
    QVERIFY(Session::mayCarryPassword(QHostAddress(u"192.0.2.1"_s), true));
}

void TestSecrecy::unverifiedCertificateGetsNoPassword()
{
    Dialogue dialogue({}, Port::Relay);
    QCOMPARE(dialogue.play(encryptedTo(u"self-signed"_s, dialogue) + uR"(
E< ready
E: Send
C: MAIL FROM:<sender@example.org>
S: 530 5.7.0 log in first
C: <closes>
E< error: certificate refused
)"_s),
             QString());
}

// What one connection has taught counts in the next, also when a login was looked for between them.
void TestSecrecy::noClearLineAfterAHangUpDuringTheQuestion()
{
    Dialogue dialogue({}, Port::Submission);
    QCOMPARE(dialogue.play(encryptedTo(u"good"_s, dialogue) + Asked + uR"(
S: <closes>
L: anna secret
E< login no longer awaited
)"_s + opening(Mode::Plain, Point::Ehlo) +
                           u"S: 250 server.example\nC: <closes>\nE< error: no encryption\n"_s),
             QString());
}

// The second certificate is the same issuer's, so that all that is wrong with it was wrong with the
// first one too.
void TestSecrecy::trustInOneCertificateIsNoneInAnotherAfterAHangUp()
{
    Dialogue dialogue({}, Port::Submission);
    const QString start = encryptedTo(u"stranger-one"_s, dialogue);
    dialogue.fakes.accounts.known.trustedCertificates = {dialogue.server.fingerprint()};
    QCOMPARE(dialogue.play(start + Asked + u"S: <closes>\n"_s), QString());
    dialogue.server.useCertificate(QStringLiteral(SORVANTA_CERTIFICATES "/stranger-two"));
    QCOMPARE(dialogue.play(u"L: anna secret\nE< login no longer awaited\n"_s + startingTls() +
                           u"S: <encrypts>\nC: <closes>\nE< error: certificate refused\n"_s),
             QString());
}

void TestSecrecy::traceHidesSecrets_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("PLAIN") << offering(u"PLAIN"_s) + LoggedIn
                           << QStringList{u"C: AUTH PLAIN ***"_s, u"S: 235 welcome"_s};
    QTest::newRow("LOGIN") << offering(u"LOGIN"_s) + Asked + Answered + uR"(
C: AUTH LOGIN
E< login no longer awaited
S: 334 VXNlcm5hbWU6
C: YW5uYQ==
S: 334 UGFzc3dvcmQ6
C: c2VjcmV0
)"_s + Accepted + u"E< ready\n"_s
                           << QStringList{u"C: AUTH LOGIN ***"_s,
                                          u"S: 334 VXNlcm5hbWU6"_s,
                                          u"C: ***"_s,
                                          u"S: 334 UGFzc3dvcmQ6"_s,
                                          u"C: ***"_s,
                                          u"S: 235 welcome"_s};
}

void TestSecrecy::traceIsWholeToTheEnd()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(Greeted + u"S: 250 server.example\nE< ready\n"_s + Disconnected),
             QString());
    const QStringList &kept = dialogue.fakes.trace.lines;
    QCOMPARE(kept.sliced(kept.size() - 4),
             QStringList({u"S: 250 server.example"_s, u"C: QUIT"_s, u"S: 221 bye"_s,
                          u"-- the session is over"_s}));
}

void TestSecrecy::traceHidesSecrets()
{
    QFETCH(QString, script);
    QFETCH(QStringList, lines);
    Dialogue dialogue({}, Port::Submission);
    QCOMPARE(dialogue.play(script), QString());
    const QStringList &kept = dialogue.fakes.trace.lines;
    QCOMPARE(kept.sliced(kept.size() - lines.size()), lines);
    QCOMPARE(kept.first(5), QStringList({u"-- connecting"_s, u"-- connected to 127.0.0.1"_s,
                                         u"S: 220 server.example ready"_s, u"C: EHLO [127.0.0.1]"_s,
                                         u"S: 250-server.example"_s}));
}

void TestSecrecy::errorHidesWhatTheServerRepeats()
{
    Dialogue dialogue({}, Port::Submission);
    QString description;
    connect(&dialogue.client, &Smtp::SmtpError, this,
            [&](qint32, const QString &text) { description = text; });
    QCOMPARE(dialogue.play(offering(u"PLAIN"_s) + Asked + Answered + Plain +
                           u"E< login no longer awaited\n"
                           u"S: 534 5.7.9 not secret nor AGFubmEAc2VjcmV0\nC: <closes>\n"
                           u"L< refused anna\nE< error: login failed\n"_s),
             QString());
    QVERIFY2(description.endsWith(u": 534 5.7.9 not *** nor ***"), qPrintable(description));
    QVERIFY(!dialogue.fakes.trace.lines.join(u'\n').contains(u"secret"));
}

void TestSecrecy::secretsInEveryForm()
{
    Secrets secrets;
    secrets.learn({Login::Kind::Password, u"anna"_s, u"pässwörd"_s});
    const QByteArray word = u"pässwörd"_s.toUtf8();
    for (const QByteArray &form : {word, word.toBase64(), ("\0anna\0"_qba + word).toBase64(),
                                   ("user=anna\1auth=Bearer "_qba + word + "\1\1").toBase64()}) {
        const QByteArray hidden = secrets.hide("it said " + form + " to me");
        QVERIFY2(hidden.startsWith("it said ***") && hidden.endsWith(" to me"), hidden.constData());
    }
    QCOMPARE(secrets.hide("anna may enter"_qba), "anna may enter"_qba);
}

// "wrong" stands in the plain words for a refusal too.
void TestSecrecy::plainWordsAreNoServersWords()
{
    Dialogue dialogue({}, Port::Submission);
    QCOMPARE(dialogue.play(offering(u"PLAIN"_s) + Asked + uR"(
L: anna wrong
C: AUTH PLAIN AGFubmEAd3Jvbmc=
E< login no longer awaited
S: 535 5.7.8 wrong
L< refused anna
L< asked again: the user name or the password is wrong: 535 5.7.8 ***
E< login awaited
)"_s),
             QString());
}

void TestSecrecy::traceIsOffUnlessWanted()
{
    Dialogue dialogue({}, Port::Submission);
    dialogue.fakes.trace.isWanted = false;
    QCOMPARE(dialogue.play(offering(u"PLAIN"_s) + LoggedIn), QString());
    QCOMPARE(dialogue.fakes.trace.lines, QStringList());
}
