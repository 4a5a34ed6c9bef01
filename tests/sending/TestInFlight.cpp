#include "TestInFlight.h"

#include "support/WorkspaceRig.h"

#include <QTest>

namespace {

const QString Waiting = QStringLiteral("Waiting");
const QString Sending = QStringLiteral("Sending...");
const QString Sent = QStringLiteral("Sent");

void stop(WorkspaceRig &rig)
{
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Ok);
    rig.w.engine.cmdStop_Click();
    rig.prompts.answerAll();
}

} // namespace

void TestInFlight::aReadySessionOfNoPresentRunIsOnlyDisconnected()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.Timer.tick();
    stop(rig);
    rig.start();
    rig.smtp.raiseReady();
    QCOMPARE(rig.smtp.calls.last(), QStringLiteral("Disconnect"));
    QVERIFY(rig.smtp.sent.isEmpty());
    QCOMPARE(rig.states(), (QStringList{Waiting, Waiting}));
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
}

void TestInFlight::aReadySessionFromBeforeAResumeIsOnlyDisconnected()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.Timer.tick();
    rig.w.engine.cmdPausa_Click();
    rig.w.engine.cmdPausa_Click();
    rig.logged();
    rig.smtp.raiseReady();
    QCOMPARE(rig.smtp.calls.last(), QStringLiteral("Disconnect"));
    QVERIFY(rig.smtp.sent.isEmpty());
    // It is no end of a packet either.
    QCOMPARE(rig.logged(), QStringList());
    rig.Timer.tick();
    rig.smtp.raiseReady();
    QCOMPARE(rig.addressesSent(), QStringList{QStringLiteral("a1@example.net")});
}

void TestInFlight::readyWhileAMessageIsInFlightHandsNothingOver()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.smtp.raiseReady();
    QCOMPARE(rig.smtp.sent.size(), 1);
    QCOMPARE(rig.states(), (QStringList{Sending, Waiting}));
}

void TestInFlight::aResultAfterStopMarksItsRow()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    stop(rig);
    QCOMPARE(rig.states(), (QStringList{Sending, Waiting}));
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.states(), (QStringList{Sent, Waiting}));
    QCOMPARE(rig.logged().last(), QStringLiteral("Message 'News' to 'a1@example.net' (1) sent."));
}

void TestInFlight::aResultAfterANewStartChangesNothingButTheLog()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.startSending();
    rig.clock.advanceMilliseconds(5000);
    stop(rig);
    rig.start();
    rig.logged();
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.states(), (QStringList{Waiting, Waiting, Waiting}));
    QCOMPARE(rig.w.engine.nextRecipientIndex(), 1);
    QCOMPARE(rig.w.form.tag(Control::lblRimanente), QStringLiteral("-"));
    QCOMPARE(rig.logged(),
             QStringList{QStringLiteral("Message 'News' to 'a1@example.net' (1) sent.")});
}

void TestInFlight::aResultAfterTheProjectWasReplacedChangesNothingButTheLog()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
    rig.w.form.countProjectReplaced();
    rig.w.form.setText(Control::txtOggetto, QStringLiteral("Another subject"));
    rig.logged();
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.states(), (QStringList{Sending, Waiting}));
    QCOMPARE(rig.logged(),
             QStringList{QStringLiteral("Message 'News' to 'a1@example.net' (1) sent.")});
}

void TestInFlight::aResultFindsItsRowWhereverItMoved()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.startSending();
    stop(rig);
    rig.w.recipients.sort(Column::Name, Qt::DescendingOrder);
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.states(), (QStringList{Waiting, Waiting, Sent}));
    QCOMPARE(rig.w.recipients.at(3).address, QStringLiteral("a1@example.net"));
}

void TestInFlight::aSecondResultChangesNothing()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.smtp.raiseDone(true);
    rig.logged();
    Q_EMIT rig.smtp.MessageDone(false);
    QCOMPARE(rig.states(), (QStringList{Sent, Waiting}));
    QCOMPARE(rig.logged(), QStringList());
}

void TestInFlight::pauseAndResumeInsideAMessageConnectBehindIt()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
    rig.w.engine.cmdPausa_Click();
    rig.Timer.tick();
    QVERIFY(rig.smtp.connectWaits());
    rig.smtp.raiseDone(true);
    rig.settle();
    QCOMPARE(rig.states(), (QStringList{Sent, Waiting, Waiting}));
    rig.smtp.raiseReady();
    QCOMPARE(rig.addressesSent(),
             (QStringList{QStringLiteral("a1@example.net"), QStringLiteral("a2@example.net")}));
}

void TestInFlight::stopAndStartInsideAMessageConnectBehindIt()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    stop(rig);
    rig.start();
    rig.Timer.tick();
    QVERIFY(rig.smtp.connectWaits());
    QCOMPARE(rig.smtp.sent.size(), 1);
    rig.smtp.raiseDone(true);
    rig.settle();
    rig.smtp.raiseReady();
    QCOMPARE(rig.smtp.sent.size(), 2);
    QCOMPARE(rig.states(), (QStringList{Sending, Waiting}));
}

void TestInFlight::anErrorOfAnEndedRunsMessageLetsTheNewRunGoOn()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    stop(rig);
    rig.start();
    rig.Timer.tick();
    rig.logged();
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{QStringLiteral("SMTP: Errorno answer")});
    QCOMPARE(rig.logged(), QStringList{QStringLiteral("SMTP Error: no answer(10)")});
    QCOMPARE(rig.w.form.runState(), RunState::Sending);
    rig.settle();
    QVERIFY(rig.smtp.readyIsDue());
    rig.smtp.raiseReady();
    QCOMPARE(rig.smtp.sent.size(), 2);
}

void TestInFlight::anErrorInTheSameRunDropsTheWaitingConnection()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
    rig.w.engine.cmdPausa_Click();
    rig.Timer.tick();
    QVERIFY(rig.smtp.connectWaits());
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    rig.settle();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QVERIFY(!rig.smtp.connectWaits());
    QVERIFY(!rig.smtp.readyIsDue());
}

void TestInFlight::anErrorOfASessionFromBeforeTheRunIsIgnored()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.Timer.tick();
    stop(rig);
    rig.start();
    rig.logged();
    rig.smtp.raiseError(4, QStringLiteral("connection refused"));
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
    QCOMPARE(rig.logged(), QStringList());
    QCOMPARE(rig.prompts.takeNotices().size(), 0);
}

void TestInFlight::aPacketThatEndsBehindTheStopQuestionCountsOn()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtNMsg, QStringLiteral("1"));
    rig.startSending();
    QVERIFY(!rig.Timer.isEnabled());
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Cancel);
    rig.w.engine.cmdStop_Click();
    rig.finishMessage();
    // The packet ended: the countdown has begun, and is held while the question is open.
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
    QVERIFY(!rig.Timer.isEnabled());
    rig.prompts.answerAll();
    QVERIFY(rig.Timer.isEnabled());
}

void TestInFlight::okAfterTheRunHasEndedDoesNothing()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.startSending();
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Ok);
    rig.w.engine.cmdStop_Click();
    rig.finishMessage();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    rig.w.form.setProjectModified(false);
    rig.logged();
    rig.prompts.answerAll();
    QCOMPARE(rig.logged(), QStringList());
    QVERIFY(!rig.w.form.projectModified());
    // The hold over the countdown ended with the question.
    rig.start();
    QVERIFY(rig.Timer.isEnabled());
}

void TestInFlight::stopSendingRemovesNoRowOfAProjectOpenedMeanwhile()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.start();
    rig.w.engine.cmdPausa_Click();
    Recipient other;
    other.address = QStringLiteral("other@example.net");
    rig.w.recipients.replaceAll({other});
    rig.w.engine.StopSending();
    QCOMPARE(rig.w.recipients.count(), 1);
}
