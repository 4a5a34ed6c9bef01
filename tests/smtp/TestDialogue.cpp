#include "smtp/TestDialogue.h"

#include "smtp/Dialogue.h"
#include "smtp/Scripts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString Connect = u"E: Connect\n"_s;
const QString Send = u"E< ready\nE: Send\n"_s;
const QString Accepted = u"S: 250 2.0.0 queued\nE< sent: 250 2.0.0 queued\n"_s;
/// The session ends while another one opens.
const QString QuitBehind = u"C: QUIT\n"_s;
const QString Quit = u"C: QUIT\nS: 221 bye\nC: <closes>\n"_s;
const QString Disconnect = u"E: Disconnect\n"_s + Quit;

} // namespace

void TestDialogue::dialogue_data()
{
    QTest::addColumn<QString>("script");

    for (const Mode mode : {Mode::Chunking, Mode::Pipelining, Mode::Plain})
        QTest::addRow("one message, %s", qUtf8Printable(nameOf(mode)))
            << Connect + opening(mode) + Send + message(mode) + Accepted + u"E< ready\n"_s +
                   Disconnect;

    QTest::newRow("without pipelining RSET comes after a refusal only")
        << Connect + opening(Mode::Plain) + Send + message(Mode::Plain) + Accepted + Send +
               message(Mode::Plain) + u"S: 554 no\nE< refused: 554 no\n"_s + Send +
               u"C: RSET\nS: 250 ok\n"_s + message(Mode::Plain) + Accepted + u"E< ready\n"_s +
               Disconnect;

    QTest::newRow("a server that knows only HELO") << uR"(
E: Connect
C: <connects>
S: 220 old server
C: EHLO [127.0.0.1]
S: 500 what?
C: HELO [127.0.0.1]
S: 250 hello
E< ready
)"_s + Disconnect;

    QTest::newRow("a greeting of several lines, replies without words") << uR"(
E: Connect
C: <connects>
S: 220-server.example
S: 220-no spam
S: 220
C: EHLO [127.0.0.1]
S: 250
E< ready
E: Send
C: MAIL FROM:<sender@example.org>
S: 250
C: RCPT TO:<anna@example.net>
S: 251
C: DATA
S: 354
C: <message>
C: .
S: 250
E< sent: 250
E< ready
)"_s + Disconnect;

    QTest::newRow("the size is declared") << uR"(
E: Connect
C: <connects>
S: 220 ready
C: EHLO [127.0.0.1]
S: 250-server.example
S: 250-size 1000000
S: 250 pipelining
E< ready
E: Send
C: RSET
C: MAIL FROM:<sender@example.org> SIZE=<size>
C: RCPT TO:<anna@example.net>
C: DATA
S: 250 ok
S: 250 ok
S: 250 ok
S: 354 go ahead
C: <stuffed>
C: .
S: 250 ok
E< sent: 250 ok
E< ready
)"_s + Disconnect;

    QTest::newRow("CHUNKING without PIPELINING is not used") << uR"(
E: Connect
C: <connects>
S: 220 ready
C: EHLO [127.0.0.1]
S: 250-server.example
S: 250 CHUNKING
)"_s + Send + message(Mode::Plain) + Accepted + u"E< ready\n"_s + Disconnect;

    const QString chunk = opening(Mode::Chunking) + Send + message(Mode::Chunking);
    const QString again = opening(Mode::Chunking) + message(Mode::Pipelining) + Accepted;
    for (const QString &reply : {u"500 what?"_s, u"502 what?"_s, u"503 what?"_s})
        QTest::addRow("BDAT is unknown: %s", qUtf8Printable(reply))
            << Connect + chunk + u"S: "_s + reply + u"\nC: <closes>\n"_s + again + Send +
                   message(Mode::Pipelining) + Accepted + u"E< ready\n"_s + Disconnect;

    QTest::newRow("BDAT is unknown, and the recipient is refused")
        << Connect + opening(Mode::Chunking) + Send + message(Mode::Chunking, Point::Rcpt) +
               u"S: 550 no\nS: 500 what?\nC: <closes>\nE< refused: 550 no\nE< ready\n"_s +
               u"E: Send\n"_s + again + u"E< ready\n"_s + Disconnect;

    QTest::newRow("BDAT is out of sequence, because the recipient is refused")
        << Connect + opening(Mode::Chunking) + Send + message(Mode::Chunking, Point::Rcpt) +
               u"S: 550 no\nS: 503 no\nE< refused: 550 no\n"_s + Send + message(Mode::Chunking) +
               Accepted + u"E< ready\n"_s + Disconnect;

    QTest::newRow("354 although every recipient is refused")
        << Connect + opening(Mode::Pipelining) + Send + message(Mode::Pipelining, Point::Rcpt) +
               u"S: 550 no\nS: 354 go ahead\nC: .\nS: 554 no recipients\nE< refused: 550 no\n"_s +
               u"E< ready\n"_s + Disconnect;

    QTest::newRow("DATA is answered with an acceptance")
        << Connect + opening(Mode::Plain) + Send + message(Mode::Plain, Point::Data) +
               u"S: 250 ok\nC: <closes>\n"_s + opening(Mode::Plain) + message(Mode::Plain) +
               Accepted + u"E< ready\n"_s + Disconnect;

    QTest::newRow("the message is answered with a question")
        << Connect + opening(Mode::Plain) + Send + message(Mode::Plain) +
               u"S: 354 more\nC: <closes>\nE< error: in doubt, perhaps accepted: -\n"_s;
}

void TestDialogue::dialogue()
{
    QFETCH(QString, script);
    Dialogue dialogue;
    QCOMPARE(dialogue.play(script), QString());
}

void TestDialogue::group_data()
{
    QTest::addColumn<QString>("script");

    const QString recipients = u"C: RCPT TO:<a@x.example>\nC: RCPT TO:<b@x.example>\n"_s;
    QTest::newRow("one of three is no address, one is refused; CHUNKING")
        << Connect + opening(Mode::Chunking) + Send +
               u"C: RSET\nC: MAIL FROM:<sender@example.org>\n"_s + recipients +
               u"C: BDAT <size> LAST\nC: <message>\nS: 250 ok\nS: 250 ok\nS: 250 ok\n"
               u"S: 550 5.1.1 no such user\nS: 250 queued\n"
               u"E< sent: 250 queued | the address has no \"@\" between a name and a domain | "
               u"550 5.1.1 no such user\nE< ready\n"_s +
               Disconnect;
    QTest::newRow("one of three is no address, one is refused; neither")
        << Connect + opening(Mode::Plain) + Send + uR"(
C: MAIL FROM:<sender@example.org>
S: 250 ok
C: RCPT TO:<a@x.example>
S: 550 5.1.1 no such user
C: RCPT TO:<b@x.example>
S: 250 ok
C: DATA
S: 354 go ahead
C: <message>
C: .
S: 250 queued
E< sent: 550 5.1.1 no such user | the address has no "@" between a name and a domain | 250 queued
E< ready
)"_s + Disconnect;
    QTest::newRow("all are refused") << Connect + opening(Mode::Plain) + Send + uR"(
C: MAIL FROM:<sender@example.org>
S: 250 ok
C: RCPT TO:<a@x.example>
S: 550 no
C: RCPT TO:<b@x.example>
S: 451 later
E< refused: 550 no | the address has no "@" between a name and a domain | 451 later
E< ready
)"_s + Disconnect;
    QTest::newRow("the sender is refused, and so is what follows")
        << Connect + opening(Mode::Pipelining) + Send +
               u"C: RSET\nC: MAIL FROM:<sender@example.org>\n"_s + recipients +
               u"C: DATA\nS: 250 ok\nS: 550 not you\nS: 503 no\nS: 503 no\nS: 503 no\n"
               u"E< refused: 550 not you | the address has no \"@\" between a name and a domain | "
               u"550 not you\nE< ready\n"_s +
               Disconnect;
    QTest::newRow("the connection is cut behind the refusal of one")
        << Connect + opening(Mode::Chunking) + Send +
               u"C: RSET\nC: MAIL FROM:<sender@example.org>\n"_s + recipients +
               u"C: BDAT <size> LAST\nC: <message>\nS: 250 ok\nS: 250 ok\nS: 250 ok\n"
               u"S: 550 no\nS: <closes>\nE< error: in doubt, perhaps accepted: - | "
               u"the address has no \"@\" between a name and a domain | 550 no\n"_s;
    QTest::newRow("421 to one, and the message is accepted for the other")
        << Connect + opening(Mode::Chunking) + Send +
               u"C: RSET\nC: MAIL FROM:<sender@example.org>\n"_s + recipients +
               u"C: BDAT <size> LAST\nC: <message>\nS: 250 ok\nS: 250 ok\nS: 250 ok\n"
               u"S: 421 enough\nS: 250 queued\nC: <closes>\nE< sent: 250 queued | "
               u"the address has no \"@\" between a name and a domain | 421 enough\nE< ready\n"_s;
}

void TestDialogue::group()
{
    QFETCH(QString, script);
    Dialogue dialogue;
    dialogue.isGroup = true;
    dialogue.recipients = u"a@x.example,nobody,b@x.example"_s;
    QCOMPARE(dialogue.play(script), QString());
}

void TestDialogue::messageInFlight_data()
{
    QTest::addColumn<QString>("script");

    const Mode mode = Mode::Chunking;
    const QString inFlight = Connect + opening(mode) + Send + message(mode);
    const QString second = opening(mode) + Send + message(mode) + Accepted + u"E< ready\n"_s;

    QTest::newRow("Disconnect lets it finish") << inFlight + u"E: Disconnect\n"_s + Accepted + Quit;
    QTest::newRow("Reset lets it finish") << inFlight + u"E: Reset\n"_s + Accepted + Quit;
    QTest::newRow("Connect waits behind it")
        << inFlight + u"E: Reset\n"_s + Connect + Accepted + QuitBehind + second + Disconnect;
    QTest::newRow("Connect alone waits too")
        << inFlight + Connect + Accepted + QuitBehind + second + Disconnect;
    QTest::newRow("Disconnect drops the Connect that waits")
        << inFlight + u"E: Reset\n"_s + Connect + u"E: Disconnect\n"_s + Accepted + Quit;
    QTest::newRow("Reset drops the Connect that waits")
        << inFlight + u"E: Reset\n"_s + Connect + u"E: Reset\n"_s + Accepted + Quit;
    QTest::newRow("two Connects that wait are one") << inFlight + u"E: Reset\n"_s + Connect +
                                                           u"E: Reset\n"_s + Connect + Accepted +
                                                           QuitBehind + second + Disconnect;
    QTest::newRow("an error that settles it leaves the Connect that waits")
        << inFlight + u"E: Reset\n"_s + Connect +
               u"S: <closes>\nE< error: in doubt, perhaps accepted: -\n"_s + second + Disconnect;
    QTest::newRow("it is handed over once more although its session was reset")
        << Connect + opening(mode) + Send + message(mode, Point::Mail) +
               u"E: Reset\nS: 421 enough\nS: <closes>\n"_s + opening(mode) + message(mode) +
               Accepted + Quit;
    QTest::newRow("a second Send is none")
        << inFlight + u"E: Send\n"_s + Accepted + u"E< ready\n"_s + Disconnect;
    QTest::newRow("Send before the session is ready") << Connect + u"E: Send\n"_s + opening(mode) +
                                                             message(mode) + Accepted +
                                                             u"E< ready\n"_s + Disconnect;
    QTest::newRow("Send and Reset before the session is ready")
        << Connect + u"E: Send\nE: Reset\n"_s + opening(mode) + message(mode) + Accepted + Quit;
    QTest::newRow("the session cannot be opened, with a message waiting")
        << Connect + u"E: Send\n"_s + opening(mode, Point::Greeting) +
               u"S: 554 no\nC: <closes>\nE< error: server refuses\n"_s;
    QTest::newRow("421, and no second session")
        << Connect + opening(mode) + Send + message(mode, Point::Mail) +
               u"S: 421 enough\nS: <closes>\n"_s + opening(mode, Point::Greeting) +
               u"S: 421 enough\nC: <closes>\nE< error: not taken: -\n"_s;
}

void TestDialogue::messageInFlight()
{
    dialogue();
}

void TestDialogue::endedSession_data()
{
    QTest::addColumn<QString>("script");

    const Mode mode = Mode::Pipelining;
    const QString first = Connect + opening(mode) + Send + message(mode);
    const QString second =
        u"E: Send\n"_s + opening(mode) + message(mode) + Accepted + u"E< ready\n"_s + Disconnect;

    QTest::newRow("the server closes before the first message")
        << Connect + opening(mode) + u"E< ready\nS: <closes>\n"_s + second;
    QTest::newRow("the server closes between two messages")
        << first + Accepted + u"E< ready\nS: <closes>\n"_s + second;
    QTest::newRow("the server says 421 between two messages")
        << first + Accepted + u"E< ready\nS: 421 idle for too long\nC: <closes>\n"_s + second;
    QTest::newRow("the server says what nobody asked for")
        << first + Accepted + u"E< ready\nS: 250 hello again\nC: <closes>\n"_s + second;
    QTest::newRow("the server closes, and the engine ends the session")
        << first + Accepted + u"E< ready\nS: <closes>\nE: Disconnect\n"_s;
    QTest::newRow("the server closes, and the engine begins another session")
        << first + Accepted + u"E< ready\nS: <closes>\nE: Reset\n"_s + Connect + opening(mode) +
               u"E< ready\n"_s + Disconnect;
    QTest::newRow("Reset ends an idle session")
        << first + Accepted + u"E< ready\nE: Reset\n"_s + Quit;
    QTest::newRow("Connect ends an idle session and opens another")
        << first + Accepted + u"E< ready\nE: Connect\n"_s + QuitBehind + opening(mode) +
               u"E< ready\n"_s + Disconnect;
    QTest::newRow("Reset while the session opens")
        << Connect + opening(mode, Point::Greeting) + u"E: Reset\nC: <closes>\n"_s;
    QTest::newRow("Disconnect while the server thinks about EHLO")
        << Connect + opening(mode, Point::Ehlo) + u"E: Disconnect\nC: <closes>\n"_s;
    QTest::newRow("the server closes on QUIT")
        << first + Accepted + u"E< ready\nE: Disconnect\nC: QUIT\nS: <closes>\n"_s;
    QTest::newRow("Send after Disconnect") << first + Accepted + u"E< ready\n"_s + Disconnect +
                                                  u"E: Send\nE< error: not connected\n"_s;
    QTest::newRow("Send without Connect") << u"E: Send\nE< error: not connected\n"_s;
    QTest::newRow("Send after an error, until Connect")
        << Connect + opening(mode, Point::Greeting) +
               u"S: 554 no\nC: <closes>\nE< error: server refuses\n"
               u"E: Send\nE< error: not connected\n"_s +
               first + Accepted + u"E< ready\n"_s + Disconnect;
}

void TestDialogue::endedSession()
{
    dialogue();
}
