#include "smtp/TestLogin.h"

#include "smtp/LoginScripts.h"
#include "smtp/client/LoginRefusal.h"

#include <QTest>

using namespace LoginScripts;
using namespace Qt::StringLiterals;

namespace {

using Port = Dialogue::Port;

const QString Refused = u"S: 535 5.7.8 bad\nL< refused anna\n"_s;
const QString AskedAgain =
    u"L< asked again: the user name or the password is wrong: 535 5.7.8 bad\n"_s
    u"E< login awaited\n"_s;

} // namespace

void TestLogin::dialogue_data()
{
    QTest::addColumn<Port>("port");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("script");

    QTest::newRow("PLAIN") << Port::Submission << QString()
                           << offering(u"LOGIN PLAIN"_s) + LoggedIn + Disconnected;
    QTest::newRow("LOGIN when there is no PLAIN")
        << Port::Submission << QString() << offering(u"CRAM-MD5 login"_s) + Asked + Answered + uR"(
C: AUTH LOGIN
E< login no longer awaited
S: 334 VXNlcm5hbWU6
C: YW5uYQ==
S: 334 UGFzc3dvcmQ6
C: c2VjcmV0
)"_s + Accepted + u"E< ready\n"_s + Disconnected;
    QTest::newRow("an access token")
        << Port::Submission << QString() << offering(u"PLAIN XOAUTH2"_s) + Asked + uR"(
L: token anna abc
C: AUTH XOAUTH2 dXNlcj1hbm5hAWF1dGg9QmVhcmVyIGFiYwEB
E< login no longer awaited
)"_s + Accepted + u"E< ready\n"_s + Disconnected;
    QTest::newRow("an access token that is refused")
        << Port::Submission << QString() << offering(u"XOAUTH2"_s) + Asked + uR"(
L: token anna abc
C: AUTH XOAUTH2 dXNlcj1hbm5hAWF1dGg9QmVhcmVyIGFiYwEB
E< login no longer awaited
S: 334 eyJzdGF0dXMiOiI0MDEifQ==
C: <empty line>
)"_s + Refused + AskedAgain;
    QTest::newRow("an access token where passwords are wanted")
        << Port::Submission << QString() << offering(u"PLAIN"_s) + Asked + uR"(
L: token anna abc
C: <closes>
E< login no longer awaited
E< error: login failed
)"_s;
    QTest::newRow("no mechanism that is known")
        << Port::Submission << QString() << offering(u"GSSAPI"_s) + Asked + Answered + uR"(
C: <closes>
E< login no longer awaited
E< error: login failed
)"_s;
    QTest::newRow("a challenge too many ends the session")
        << Port::Submission << QString() << offering(u"PLAIN"_s) + Asked + Answered + Plain + uR"(
E< login no longer awaited
S: 334 bW9yZQ==
C: <closes>
E< error: login failed
)"_s;
    QTest::newRow("nobody knows a login")
        << Port::Submission << QString() << offering(u"PLAIN"_s) + Asked + uR"(
L: none
C: <closes>
E< login no longer awaited
E< error: login failed
)"_s;
    QTest::newRow("on another port nobody logs in unasked")
        << Port::Other << QString() << offering(u"PLAIN"_s) + u"E< ready\n"_s + Disconnected;
    QTest::newRow("between mail servers nobody logs in unasked")
        << Port::Relay << QString() << offering(u"PLAIN"_s) + u"E< ready\n"_s + Disconnected;
    QTest::newRow("on another port the user of the account logs in")
        << Port::Other << u"anna"_s << offering(u"PLAIN"_s) + LoggedIn + Disconnected;
    QTest::newRow("where no login is offered there is none")
        << Port::Submission << u"anna"_s
        << Greeted + u"S: 250 server.example\nE< ready\n"_s + Disconnected;
    QTest::newRow("the old way of offering it")
        << Port::Submission << QString()
        << Greeted + u"S: 250-server.example\nS: 250 AUTH=PLAIN\n"_s + LoggedIn + Disconnected;

    QTest::newRow("the second password is right")
        << Port::Submission << QString()
        << offering(u"PLAIN"_s) + Asked + Answered + Plain + u"E< login no longer awaited\n"_s +
               Refused + AskedAgain + Answered + Plain + u"E< login no longer awaited\n"_s +
               Accepted + u"E< ready\n"_s + Disconnected;
    QTest::newRow("the third refusal is an error")
        << Port::Submission << QString()
        << offering(u"PLAIN"_s) + Asked + Answered + Plain + u"E< login no longer awaited\n"_s +
               Refused + AskedAgain + Answered + Plain + u"E< login no longer awaited\n"_s +
               Refused + AskedAgain + Answered + Plain +
               u"E< login no longer awaited\n"
               u"S: 535 5.7.8 bad\nC: <closes>\nL< refused anna\nE< error: login failed\n"_s;
    QTest::newRow("a server that has switched passwords off is not asked again")
        << Port::Submission << QString()
        << offering(u"PLAIN"_s) + Asked + Answered + Plain +
               u"E< login no longer awaited\n"
               u"S: 550 5.7.30 no passwords\nC: <closes>\nL< refused anna\n"
               u"E< error: login failed\n"_s;
    QTest::newRow("a server that cannot check it now does not make the password wrong")
        << Port::Submission << QString()
        << offering(u"PLAIN"_s) + Asked + Answered + Plain +
               u"E< login no longer awaited\n"
               u"S: 454 4.7.0 later\nC: <closes>\nE< error: login failed\n"_s;
    const QString calledAgain = Answered + u"E< login no longer awaited\n"_s +
                                opening(Mode::Plain, Point::Ehlo) +
                                u"S: 250-server.example\nS: 250 AUTH PLAIN\n"_s + Plain + Accepted +
                                u"E< ready\n"_s + Disconnected;
    QTest::newRow("the server does not wait for a slow person")
        << Port::Submission << QString()
        << offering(u"PLAIN"_s) + Asked + u"S: 421 too slow\nC: <closes>\n"_s + calledAgain;
    QTest::newRow("the server closes without a word meanwhile")
        << Port::Submission << QString()
        << offering(u"PLAIN"_s) + Asked + u"S: <closes>\n"_s + calledAgain;
    QTest::newRow("what is said meanwhile is not listened to")
        << Port::Submission << QString()
        << offering(u"PLAIN"_s) + Asked + u"S: hurry up\nC: <closes>\n"_s + calledAgain;
    QTest::newRow("only 2xx accepts a login")
        << Port::Submission << QString()
        << offering(u"PLAIN"_s) + Asked + Answered + Plain +
               u"E< login no longer awaited\nS: 354 go on\n"
               u"L< asked again: the server refuses the login: 354 go on\n"
               u"E< login awaited\n"_s;

    // The server asks for it at MAIL.
    const QString atMail = offering(u"PLAIN"_s) + uR"(
E< ready
E: Send
C: MAIL FROM:<sender@example.org>
)"_s;
    const QString again = u"C: RSET\nS: 250 ok\n"_s + message(Mode::Plain) +
                          u"S: 250 queued\nE< sent: 250 queued\nE< ready\n"_s;
    for (const QString &reply : {u"530 5.7.0 log in first"_s, u"550 5.7.1 log in first"_s}) {
        QTest::addRow("asked for at MAIL: %s", qPrintable(reply))
            << Port::Other << QString()
            << atMail + u"S: "_s + reply + u'\n' + Asked + Answered + Plain +
                   u"E< login no longer awaited\n"_s + Accepted + again + Disconnected;
    }
    QTest::newRow("asked for at MAIL with pipelining: nothing is sent twice") << Port::Other
                                                                              << QString()
                                                                              << Greeted + uR"(
S: 250-server.example
S: 250-PIPELINING
S: 250-CHUNKING
S: 250 AUTH PLAIN
E< ready
E: Send
C: RSET
C: MAIL FROM:<sender@example.org>
C: RCPT TO:<anna@example.net>
C: BDAT <size> LAST
C: <message>
S: 250 ok
S: 530 5.7.0 log in first
S: 530 5.7.0 log in first
S: 530 5.7.0 log in first
)"_s + Asked + Answered + Plain + u"E< login no longer awaited\n"_s + Accepted + uR"(
C: RSET
C: MAIL FROM:<sender@example.org>
C: RCPT TO:<anna@example.net>
C: BDAT <size> LAST
C: <message>
S: 250 ok
S: 250 ok
S: 250 ok
S: 250 queued
E< sent: 250 queued
E< ready
)"_s + Disconnected;
    QTest::newRow("asked for at MAIL: the next session logs in at once")
        << Port::Other << QString()
        << atMail + u"S: 530 5.7.0 log in first\n"_s + Asked + Answered + Plain +
               u"E< login no longer awaited\n"_s + Accepted + again + Disconnected +
               offering(u"PLAIN"_s) + LoggedIn + Disconnected;
    QTest::newRow("any other refusal of the sender asks for no login")
        << Port::Other << QString()
        << atMail +
               u"S: 550 5.1.8 unknown sender\nE< refused: 550 5.1.8 unknown sender\n"
               u"E< ready\n"_s +
               Disconnected;
    QTest::newRow("refused for want of rights after a login: the row's matter")
        << Port::Submission << QString() << offering(u"PLAIN"_s) + LoggedIn + uR"(
E: Send
C: MAIL FROM:<sender@example.org>
S: 550 5.7.1 not your address
E< refused: 550 5.7.1 not your address
E< ready
)"_s + Disconnected;
    QTest::newRow("passwords switched off, said at MAIL")
        << Port::Submission << QString() << offering(u"PLAIN"_s) + LoggedIn + uR"(
E: Send
C: MAIL FROM:<sender@example.org>
S: 550 5.7.30 no passwords
C: <closes>
E< error: login failed
)"_s;
    QTest::newRow("a login is wanted and none is offered")
        << Port::Other << QString() << Greeted + uR"(
S: 250 server.example
E< ready
E: Send
C: MAIL FROM:<sender@example.org>
S: 530 5.7.0 log in first
C: <closes>
E< error: login failed
)"_s;
}

void TestLogin::dialogue()
{
    QFETCH(Port, port);
    QFETCH(QString, user);
    QFETCH(QString, script);
    Dialogue dialogue({}, port);
    dialogue.fakes.accounts.known.user = user;
    QCOMPARE(dialogue.play(script), QString());
}

void TestLogin::refusalInPlainWords_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("enhanced");
    QTest::addColumn<QString>("beginning");
    QTest::addColumn<bool>("isFinal");

    const QString wrong = u"the user name or the password is wrong"_s;
    const QString appPassword = u"the provider does not take the account's password here"_s;
    const QString switchedOff = u"the provider has switched off logins with a password"_s;
    QTest::newRow("535") << 535 << u""_s << wrong << false;
    QTest::newRow("535 5.7.8") << 535 << u"5.7.8"_s << wrong << false;
    QTest::newRow("535 5.7.3") << 535 << u"5.7.3"_s << wrong << false;
    QTest::newRow("534") << 534 << u""_s << appPassword << true;
    QTest::newRow("534 5.7.9") << 534 << u"5.7.9"_s << appPassword << true;
    QTest::newRow("550 5.7.30") << 550 << u"5.7.30"_s << switchedOff << true;
    QTest::newRow("535 5.7.139") << 535 << u"5.7.139"_s << switchedOff << true;
    QTest::newRow("538") << 538 << u""_s << u"the server takes this login only on an enc"_s << true;
    QTest::newRow("535 5.7.1") << 535 << u"5.7.1"_s << u"the server does not let this user"_s
                               << false;
    QTest::newRow("530 5.7.0") << 530 << u"5.7.0"_s << u"the server refuses the login"_s << false;
    QTest::newRow("530") << 530 << u""_s << u"the server takes no message without a login"_s
                         << false;
    QTest::newRow("454 4.7.0") << 454 << u"4.7.0"_s << u"the server cannot check logins at the"_s
                               << true;
    QTest::newRow("500") << 500 << u""_s << u"the server refuses the login"_s << false;
}

void TestLogin::refusalInPlainWords()
{
    QFETCH(int, code);
    QFETCH(QString, enhanced);
    QFETCH(QString, beginning);
    QFETCH(bool, isFinal);
    const ServerReply reply{SmtpVerb::Auth, code, enhanced, u"so there"_s};
    const LoginRefusal refusal = LoginRefusal::of(reply);
    QVERIFY2(refusal.text.startsWith(beginning), qPrintable(refusal.text));
    QVERIFY(refusal.text.endsWith(u": "_s + reply.toText()));
    QCOMPARE(refusal.isFinal, isFinal);
}

void TestLogin::messageHeldForALoginIsGivenUpByDisconnect()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(offering(u"PLAIN"_s) + uR"(
E< ready
E: Send
C: MAIL FROM:<sender@example.org>
S: 530 5.7.0 log in first
L< asked
E< login awaited
E: Disconnect
C: <closes>
E< error: login failed
)"_s),
             QString());
    QVERIFY(!dialogue.fakes.logins.request.stands());
    QCOMPARE(dialogue.fakes.logins.dropped, 1);
    QCOMPARE(dialogue.play(u"L: anna secret\n"_s), QString());
}

void TestLogin::repliesAheadOfAHeldMessageAreOutOfStep()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(offering(u"PLAIN"_s) + uR"(
E< ready
E: Send
C: MAIL FROM:<sender@example.org>
S: 530 5.7.0 log in first
L< asked
E< login awaited
L: anna secret
C: AUTH PLAIN AGFubmEAc2VjcmV0
E< login no longer awaited
S: <welcomes and accepts>
L< accepted anna
C: <closes>
E< error: unreadable
)"_s),
             QString());
}

void TestLogin::veryManyMechanismsDoNoHarm()
{
    QByteArray lines = "server.example"_qba;
    for (int i = 0; i < 200000; ++i)
        lines += (i % 400 == 0 ? "\nAUTH M"_qba : " M"_qba) + QByteArray::number(i);
    const Extensions extensions = Extensions::fromEhlo(lines + "\nAUTH PLAIN");
    QVERIFY(extensions.auth);
    QCOMPARE(extensions.authMechanisms, QList<QByteArray>{"PLAIN"_qba});
    QVERIFY(extensions.authOffer.size() <= 200);
}

void TestLogin::resetDropsTheQuestion()
{
    Dialogue dialogue({}, Port::Submission);
    QCOMPARE(dialogue.play(offering(u"PLAIN"_s) + Asked), QString());
    QVERIFY(dialogue.fakes.logins.request.stands());
    QCOMPARE(dialogue.play(u"E: Reset\nC: <closes>\n"_s), QString());
    QVERIFY(!dialogue.fakes.logins.request.stands());
    // A late answer does no harm.
    QCOMPARE(dialogue.play(u"L: anna secret\n"_s), QString());
}

void TestLogin::messageHeldForALoginIsNotTakenWhenNoneIsKnown()
{
    Dialogue dialogue;
    bool mayHaveBeenAccepted = true;
    connect(&dialogue.client, &Smtp::SmtpError, this,
            [&] { mayHaveBeenAccepted = dialogue.client.mayHaveBeenAccepted(); });
    QCOMPARE(dialogue.play(offering(u"PLAIN"_s) + uR"(
E< ready
E: Send
C: MAIL FROM:<sender@example.org>
S: 530 5.7.0 log in first
L< asked
E< login awaited
L: none
C: <closes>
E< login no longer awaited
E< error: login failed
)"_s),
             QString());
    QVERIFY(!mayHaveBeenAccepted);
}
