#include "smtp/TestClient.h"

#include "smtp/Dialogue.h"
#include "smtp/Scripts.h"

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString Open = u"E: Connect\n"_s + opening(Mode::Chunking);
const QString InFlight = Open + u"E< ready\nE: Send\n"_s + message(Mode::Chunking);

/// The text of the error that comes next.
QString descriptionOf(SmtpClient &client, const std::function<void()> &cause)
{
    QString text;
    const auto connection =
        QObject::connect(&client, &Smtp::SmtpError, &client,
                         [&](qint32, const QString &description) { text = description; });
    cause();
    if (!FakeServer::waitUntil([&] { return !text.isEmpty(); }))
        return u"no error came"_s;
    QObject::disconnect(connection);
    return text;
}

} // namespace

void TestClient::badTarget_data()
{
    QTest::addColumn<QString>("server");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("description");

    const QString port = u"smtp.example: the port must be a number from 1 to 65535, not %1"_s;
    QTest::newRow("port 0") << u"smtp.example"_s << 0 << port.arg(0);
    QTest::newRow("port -1") << u"smtp.example"_s << -1 << port.arg(-1);
    QTest::newRow("port 65536") << u"smtp.example"_s << 65536 << port.arg(65536);
    QTest::newRow("no server") << u""_s << 25 << u"no server is given"_s;
    QTest::newRow("blanks for a server") << u"  "_s << 25 << u"no server is given"_s;
}

void TestClient::badTarget()
{
    QFETCH(QString, server);
    QFETCH(int, port);
    QFETCH(QString, description);
    Dialogue dialogue;
    dialogue.client.Server = server;
    dialogue.client.Port = port;
    QCOMPARE(descriptionOf(dialogue.client, [&] { dialogue.client.Connect(); }), description);
    QCOMPARE(dialogue.events().size(), 1);
}

void TestClient::nothingListens()
{
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const quint16 port = closed.serverPort();
    closed.close();
    Dialogue dialogue;
    dialogue.client.Server = u"127.0.0.1"_s;
    dialogue.client.Port = port;
    const QString text = descriptionOf(dialogue.client, [&] { dialogue.client.Connect(); });
    QVERIFY2(text.startsWith(u"127.0.0.1:%1: the connection failed: "_s.arg(port)),
             qUtf8Printable(text));
    QCOMPARE(dialogue.events(), QStringList{u"error: cannot connect"_s});
}

void TestClient::descriptions_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("description");

    QTest::newRow("refused") << u"E: Connect\n"_s + opening(Mode::Plain, Point::Greeting) +
                                    u"S: 554 5.7.1 go away\nC: <closes>\nE< error: server refuses"_s
                             << u"the server refuses: 554 5.7.1 go away"_s;
    QTest::newRow("unreadable") << u"E: Connect\n"_s + opening(Mode::Plain, Point::Greeting) +
                                       u"S: hello, \tworld\nC: <closes>\nE< error: unreadable"_s
                                << u"the server's words are no SMTP reply: \"hello,  world\""_s;
    QTest::newRow("closed") << u"E: Connect\n"_s + opening(Mode::Plain, Point::Ehlo) +
                                   u"S: <closes>\nE< error: closed"_s
                            << u"the server closed the connection"_s;
    QTest::newRow("in doubt")
        << InFlight + u"S: <closes>\nE< error: in doubt, perhaps accepted: -"_s
        << u"the message was transferred, but the server did not say whether it accepts it: the "
           u"server closed the connection"_s;
    const QString enough =
        message(Mode::Chunking, Point::Mail) + u"S: 421 4.3.2 enough\nS: <closes>\n"_s;
    QTest::newRow("not taken") << Open + u"E< ready\nE: Send\n"_s + enough +
                                      opening(Mode::Chunking) + enough + u"E< error: not taken: -"_s
                               << u"the message was not taken: the server said 421 4.3.2 enough"_s;
}

void TestClient::descriptions()
{
    QFETCH(QString, script);
    QFETCH(QString, description);
    Dialogue dialogue;
    const QString text =
        descriptionOf(dialogue.client, [&] { QCOMPARE(dialogue.play(script), QString()); });
    QCOMPARE(text, u"127.0.0.1:%1: "_s.arg(dialogue.server.port()) + description);
}

void TestClient::doneAndReadyComeTogether()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(InFlight), QString());
    bool isSameTurn = false;
    connect(&dialogue.client, &Smtp::MessageDone, this, [&] {
        isSameTurn = true;
        QMetaObject::invokeMethod(
            this, [&] { isSameTurn = false; }, Qt::QueuedConnection);
    });
    bool wasSameTurn = false;
    connect(&dialogue.client, &Smtp::StatusChanged, this, [&] { wasSameTurn = isSameTurn; });
    QCOMPARE(dialogue.play(u"S: 250 queued\nE< sent: 250 queued\nE< ready"_s), QString());
    QVERIFY(wasSameTurn);
}

void TestClient::disconnectInsideDone()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(InFlight), QString());
    connect(&dialogue.client, &Smtp::MessageDone, this, [&] { dialogue.client.Disconnect(); });
    QCOMPARE(dialogue.play(u"S: 250 queued\nE< sent: 250 queued\nC: QUIT\nS: 221 bye\n"
                           u"C: <closes>"_s),
             QString());
}

void TestClient::connectInsideDone()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(InFlight + u"E: Reset\nE: Connect\n"_s), QString());
    connect(&dialogue.client, &Smtp::MessageDone, this, [&] { dialogue.client.Connect(); });
    QCOMPARE(dialogue.play(u"S: 250 queued\nE< sent: 250 queued\nC: QUIT\n"_s +
                           opening(Mode::Chunking) + u"E< ready"_s),
             QString());
}

void TestClient::disconnectInsideErrorDropsTheConnectThatWaits()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(InFlight + u"E: Reset\nE: Connect\n"_s), QString());
    connect(&dialogue.client, &Smtp::SmtpError, this, [&] { dialogue.client.Disconnect(); });
    QCOMPARE(dialogue.play(u"S: <closes>\nE< error: in doubt, perhaps accepted: -"_s), QString());
    QCOMPARE(dialogue.server.connectionCount(), 1);
}

void TestClient::repliesAreReadableInsideTheEventOnly()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(InFlight + u"S: 550 no\nE< refused: 550 no\nE< ready\n"_s), QString());
    QVERIFY(dialogue.client.lastReplies().isEmpty());
}

void TestClient::statusFlag()
{
    Dialogue dialogue;
    // More than a connection takes in while nobody reads.
    dialogue.text = u"A line of a very long letter.\r\n"_s.repeated(500'000);
    QCOMPARE(dialogue.client.StatusFlag(), 0);
    QCOMPARE(dialogue.play(Open + u"E< ready\n"_s), QString());
    QCOMPARE(dialogue.client.StatusFlag(), 0);
    dialogue.setMessage();
    dialogue.client.Send();
    QCOMPARE(dialogue.client.StatusFlag(), 1);
    QVERIFY(FakeServer::waitUntil([&] { return dialogue.client.StatusFlag() == 0; }));
}

void TestClient::messageThatCannotBeBuilt()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(Open + u"E< ready\n"_s), QString());
    dialogue.setMessage();
    dialogue.client.RecipientList = true;
    dialogue.client.RecipientAddress = u"a@x.example,b@x.example"_s;
    dialogue.client.AddAttachment(u"/nowhere/a.pdf"_s);
    dialogue.client.Send();
    QVERIFY(dialogue.events().isEmpty());
    const QString reason = u"/nowhere/a.pdf: the file does not exist"_s;
    QCOMPARE(dialogue.play(u"E< refused: "_s + reason + u" | "_s + reason +
                           u"\nE< ready\nE: Send\n"_s + message(Mode::Chunking) +
                           u"S: 250 ok\nE< sent: 250 ok\nE< ready"_s),
             QString());
}

void TestClient::messageThatCannotBeBuiltBeforeTheSessionIsReady()
{
    Dialogue dialogue;
    const QString connected = opening(Mode::Chunking, Point::Greeting);
    QCOMPARE(dialogue.play(u"E: Connect\n"_s + connected), QString());
    dialogue.setMessage();
    dialogue.client.AddAttachment(u"/nowhere/a.pdf"_s);
    dialogue.client.Send();
    QCOMPARE(dialogue.play(u"E< refused: /nowhere/a.pdf: the file does not exist\n"_s +
                           opening(Mode::Chunking).sliced(connected.size()) + u"E< ready"_s),
             QString());
}

void TestClient::messageThatIsTooLarge()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(uR"(
E: Connect
C: <connects>
S: 220 ready
C: EHLO [127.0.0.1]
S: 250-server.example
S: 250 SIZE 100
E< ready
)"_s),
             QString());
    dialogue.setMessage();
    const qsizetype size = dialogue.client.compose()->size();
    QCOMPARE(dialogue.play(u"E: Send\nE< refused: the message has %1 bytes, and the server takes "
                           u"no more than 100\nE< ready\nE: Disconnect\nC: QUIT"_s.arg(size)),
             QString());
}

void TestClient::serverClosesWhileTheEngineSends()
{
    Dialogue dialogue;
    QCOMPARE(dialogue.play(Open + u"E< ready\n"_s), QString());
    // The client has not seen it when it writes the message.
    dialogue.server.say("421 4.3.2 enough\r\n");
    dialogue.server.close();
    dialogue.setMessage();
    dialogue.client.Send();
    QCOMPARE(dialogue.server.takeConnection(), QString());
    dialogue.server.say("554 no\r\n");
    QCOMPARE(dialogue.play(u"C: <closes>\nE< error: not taken: -"_s), QString());
}

void TestClient::nobodyCanBeWrittenTo_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("reason");

    const QString characters = u"the address holds characters that no address may hold"_s;
    QTest::newRow("empty") << u""_s << u"the address is empty"_s;
    QTest::newRow("a second command") << u"a@x.example>\r\nRCPT TO:<b@x.example"_s << characters;
    QTest::newRow("a line end") << u"a\n@x.example"_s << characters;
    QTest::newRow("NUL") << u"a\0@x.example"_s << characters;
    QTest::newRow("angle brackets") << u"<a@x.example>"_s << characters;
    QTest::newRow("SMTPUTF8 is not offered")
        << u"è@x.example"_s
        << u"the address is not ASCII before its \"@\", and the server does not take such addresses"_s;
}

void TestClient::nobodyCanBeWrittenTo()
{
    QFETCH(QString, address);
    QFETCH(QString, reason);
    Dialogue dialogue;
    dialogue.recipients = address;
    QCOMPARE(dialogue.play(Open + u"E< ready\nE: Send\nE< refused: "_s + reason +
                           u"\nE< ready\nE: Disconnect\nC: QUIT"_s),
             QString());
}

void TestClient::quitIsNotWaitedFor()
{
    Limits limits;
    limits.quit = std::chrono::milliseconds(1);
    Dialogue dialogue(limits);
    QCOMPARE(dialogue.play(Open + u"E< ready\nE: Disconnect\nC: QUIT\nS: <nothing>\nC: <closes>"_s),
             QString());
}

void TestClient::clientIsDestroyedAtAnyTime()
{
    const QStringList lines = (InFlight + u"E: Reset\nE: Connect\n"_s).split(u'\n');
    for (qsizetype length = 1; length <= lines.size(); ++length) {
        auto dialogue = std::make_unique<Dialogue>();
        (void)dialogue->play(lines.first(length).join(u'\n'));
        dialogue.reset();
        FakeServer::settle();
    }
}

void TestClient::compose()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.txt"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    Dialogue dialogue;
    dialogue.setMessage();
    dialogue.client.AddAttachment(file.fileName());
    QVERIFY(dialogue.client.compose()->contains("filename=a.txt"));
    QVERIFY(!dialogue.client.compose()->contains("filename"));
    dialogue.client.AddAttachment(folder.path());
    QCOMPARE(dialogue.client.compose().error(), folder.path() + u": it is a folder"_s);
    dialogue.client.RecipientAddress = u"nobody"_s;
    QCOMPARE(dialogue.client.compose().error(),
             u"the address has no \"@\" between a name and a domain"_s);
    QVERIFY(dialogue.events().isEmpty());
}

void TestClient::composingBeginsANewSetOfInlineFiles()
{
    QTemporaryFile picture;
    QVERIFY(picture.open());
    Dialogue dialogue;
    dialogue.setMessage();
    const QString first = dialogue.client.AddRelatedFile(picture.fileName());
    dialogue.client.HtmlBody = u"<img src=\""_s + first + u"\">"_s;
    QVERIFY(dialogue.client.compose()->contains("Content-ID"));
    QVERIFY(dialogue.client.compose()->contains("Content-ID")); // it stays until the next one
    QVERIFY(!dialogue.client.AddRelatedFile(picture.fileName()).isEmpty());
    QVERIFY(!dialogue.client.compose()->contains("Content-ID"));
}

void TestClient::fullHostName()
{
    FakeServer server;
    const FakeClock clock;
    ClientFakes fakes;
    SmtpClient client(clock, fakes.surroundings({}, {}, u"pc.example.org"_s));
    client.Server = u"127.0.0.1"_s;
    client.Port = server.port();
    client.Connect();
    QCOMPARE(server.takeConnection(), QString());
    server.say("220 ready\r\n");
    QCOMPARE(server.hear("EHLO pc.example.org\r\n"), QString());
}
