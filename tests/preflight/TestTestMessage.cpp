#include "TestTestMessage.h"

#include "PreflightRig.h"

using namespace Qt::StringLiterals;

namespace {

// A test message and what was said about it.
struct TestRig : PreflightRig
{
    TestRig()
    {
        fillForm(3);
        QObject::connect(&test, &TestMessage::finished, &trialClient,
                         [this](bool accepted, const QString &text) {
                             results += (accepted ? u"yes: "_s : u"no: "_s) + text;
                         });
    }

    void send(int position = 2) { test.send(position, u"me@example.org"_s); }
    /// Sends, up to the message in flight.
    void handOver()
    {
        send();
        trialClient.raiseReady();
    }

    QStringList results;
};

ServerReply reply(int code, const QString &enhanced, const QString &text)
{
    return {SmtpVerb::Content, code, enhanced, text};
}

} // namespace

void TestTestMessage::theMessageGoesToTheAddressInASessionOfItsOwn()
{
    TestRig rig;
    rig.send();
    QCOMPARE(rig.trialClient.connections, QStringList{u"mail.example.org:25"_s});
    QVERIFY(rig.trialClient.sent.isEmpty());
    rig.trialClient.raiseReady();
    QCOMPARE(rig.trialClient.sent.size(), 1);
    QCOMPARE(rig.trialClient.sent.front().message.RecipientAddress, u"me@example.org"_s);
    QCOMPARE(rig.trialClient.sent.front().message.TextBody, u"Dear Name 2,\r\n"_s);
    QCOMPARE(rig.results, QStringList());
    rig.trialClient.raiseDone(true);
    QCOMPARE(rig.trialClient.calls.last(), u"Disconnect"_s);
    QCOMPARE(rig.results.size(), 1);
    QVERIFY(rig.smtp.calls.isEmpty());
    QCOMPARE(rig.states(), QStringList(QList<QString>(3, u"Waiting"_s)));
}

void TestTestMessage::theServersReplyIsTheResult_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QList<ServerReply>>("replies");
    QTest::addColumn<QString>("result");
    QTest::newRow("accepted") << true << QList{reply(250, u"2.0.0"_s, u"queued"_s)}
                              << u"yes: The server accepted the message: 250 2.0.0 queued"_s;
    QTest::newRow("accepted, no reply")
        << true << QList<ServerReply>() << u"yes: The server accepted the message."_s;
    QTest::newRow("refused") << false << QList{reply(550, u"5.1.1"_s, u"nobody here"_s)}
                             << u"no: The message was refused: 550 5.1.1 nobody here"_s;
    QTest::newRow("not built") << false << QList{reply(0, {}, u"it cannot be read"_s)}
                               << u"no: The message was refused: it cannot be read"_s;
}

void TestTestMessage::theServersReplyIsTheResult()
{
    QFETCH(bool, accepted);
    QFETCH(QList<ServerReply>, replies);
    QFETCH(QString, result);
    TestRig rig;
    rig.handOver();
    rig.trialClient.raiseDone(accepted, replies);
    QCOMPARE(rig.results, QStringList{result});
    QCOMPARE(rig.test.outcome(),
             accepted ? TestMessage::Outcome::Accepted : TestMessage::Outcome::Refused);
}

void TestTestMessage::anErrorOfTheSessionIsTheResult()
{
    TestRig rig;
    rig.send();
    rig.trialClient.raiseError(4, u"connection refused"_s);
    QCOMPARE(rig.results, QStringList{u"no: The message was not sent: connection refused"_s});
    QCOMPARE(rig.test.outcome(), TestMessage::Outcome::Failed);
}

void TestTestMessage::anErrorInDoubtIsSaidSo()
{
    TestRig rig;
    rig.handOver();
    rig.trialClient.raiseError(10, u"no answer"_s, true);
    rig.handOver();
    rig.trialClient.raiseError(9, u"not taken"_s, false);
    QCOMPARE(
        rig.results,
        (QStringList{u"no: It is not known whether the server accepted the message: no answer"_s,
                     u"no: The message was not sent: not taken"_s}));
}

void TestTestMessage::whatCannotBeginIsSaidFromTheEventLoop_data()
{
    QTest::addColumn<QString>("server");
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<QString>("result");
    QTest::newRow("no server") << QString() << true
                               << u"no: The message was not sent: no server is named"_s;
    QTest::newRow("bad port")
        << u"mail:0"_s << true
        << u"no: The message was not sent: '0' is not a port number from 1 to 65535"_s;
    QTest::newRow("no file") << u"mail"_s << false
                             << u"no: The message was not sent: %1: the file does not exist"_s;
}

void TestTestMessage::whatCannotBeginIsSaidFromTheEventLoop()
{
    QFETCH(QString, server);
    QFETCH(bool, hasFile);
    QFETCH(QString, result);
    TestRig rig;
    rig.w.form.setText(Control::txtServer, server);
    const QString path = rig.w.form.tag(Control::txtEmail);
    if (!hasFile) {
        QVERIFY(QFile::remove(path));
        result = result.arg(path);
    }
    rig.send();
    QCOMPARE(rig.results, QStringList());
    rig.settle();
    QCOMPARE(rig.results, QStringList{result});
    QCOMPARE(rig.test.outcome(), TestMessage::Outcome::NotBegun);
    QVERIFY(rig.trialClient.connections.isEmpty());
}

void TestTestMessage::aFileThatVanishesWhileConnectingEndsIt()
{
    TestRig rig;
    rig.send();
    QVERIFY(QFile::remove(rig.w.form.tag(Control::txtEmail)));
    rig.trialClient.raiseReady();
    QCOMPARE(rig.results.size(), 1);
    QCOMPARE(rig.test.outcome(), TestMessage::Outcome::NotBegun);
    QVERIFY(rig.trialClient.sent.isEmpty());
    QCOMPARE(rig.trialClient.calls.last(), u"Disconnect"_s);
}

void TestTestMessage::aSecondSendGivesUpTheFirstBeforeItIsReady()
{
    TestRig rig;
    rig.send(1);
    rig.send(3);
    rig.trialClient.raiseReady();
    rig.trialClient.raiseDone(true);
    QCOMPARE(rig.trialClient.sent.size(), 1);
    QCOMPARE(rig.trialClient.sent.front().message.TextBody, u"Dear Name 3,\r\n"_s);
    QCOMPARE(rig.results.size(), 1);
}

void TestTestMessage::aSecondSendGivesUpTheFirstInFlight()
{
    TestRig rig;
    rig.handOver();
    rig.send(3);
    QVERIFY(rig.trialClient.connectWaits());
    rig.trialClient.raiseDone(false); // of the first
    QCOMPARE(rig.results, QStringList());
    rig.settle();
    rig.trialClient.raiseReady();
    QCOMPARE(rig.trialClient.sent.size(), 2);
    rig.trialClient.raiseDone(true);
    QCOMPARE(rig.results, QStringList{u"yes: The server accepted the message."_s});
}

void TestTestMessage::anErrorOfTheMessageGivenUpLeavesTheSecondAlone()
{
    TestRig rig;
    rig.handOver();
    rig.send(3);
    rig.trialClient.raiseError(10, u"no answer"_s); // of the first
    rig.settle();
    rig.trialClient.raiseReady();
    rig.trialClient.raiseDone(true);
    QCOMPARE(rig.results, QStringList{u"yes: The server accepted the message."_s});
}

void TestTestMessage::givingUpSaysNothingMore()
{
    TestRig rig;
    rig.test.giveUp();
    QVERIFY(rig.trialClient.calls.isEmpty());
    rig.send();
    rig.test.giveUp();
    QCOMPARE(rig.trialClient.calls.last(), u"Disconnect"_s);
    rig.handOver();
    rig.test.giveUp();
    rig.trialClient.raiseDone(true);
    rig.settle();
    QCOMPARE(rig.results, QStringList());
}

void TestTestMessage::givingUpWhatCannotBeginSaysNothingMore()
{
    TestRig rig;
    rig.w.form.setText(Control::txtServer, {});
    rig.send();
    rig.test.giveUp();
    rig.settle();
    QCOMPARE(rig.results, QStringList());
}

void TestTestMessage::eventsOutOfTurnChangeNothing()
{
    TestRig rig;
    rig.trialClient.raiseReady();
    rig.trialClient.raiseDone(true);
    rig.trialClient.raiseError(6, u"closed"_s);
    QVERIFY(rig.trialClient.sent.isEmpty());
    rig.send();
    Q_EMIT rig.trialClient.StatusChanged(-1);
    rig.trialClient.raiseDone(true);
    QVERIFY(rig.trialClient.sent.isEmpty());
    rig.trialClient.raiseReady();
    rig.trialClient.raiseReady();
    QCOMPARE(rig.trialClient.sent.size(), 1);
    QCOMPARE(rig.results, QStringList());
}

void TestTestMessage::whoeverHearsTheResultMaySendAgain()
{
    TestRig rig;
    int sends = 0;
    QObject::connect(&rig.test, &TestMessage::finished, &rig.trialClient, [&] {
        if (++sends == 1)
            rig.send(3);
    });
    rig.trialClient.automatic = true;
    rig.send(1);
    for (int turn = 0; turn < 10; ++turn)
        rig.settle();
    QCOMPARE(rig.trialClient.sent.size(), 2);
    QCOMPARE(rig.results.size(), 2);
}

void TestTestMessage::aCheckWhileConnectingDoesNotChangeTheMessage()
{
    TestRig rig;
    rig.w.attachments.replaceAll({rig.file(u"a.pdf"_s, "a")});
    rig.send(2);
    rig.preflight.look();
    rig.trialClient.raiseReady();
    QCOMPARE(rig.trialClient.sent.front().message.RecipientAddress, u"me@example.org"_s);
    QCOMPARE(rig.trialClient.sent.front().message.TextBody, u"Dear Name 2,\r\n"_s);
    QCOMPARE(rig.trialClient.sent.front().attachments, rig.w.attachments.paths());
}
