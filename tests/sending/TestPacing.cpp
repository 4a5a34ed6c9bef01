#include "TestPacing.h"

#include "support/WorkspaceRig.h"

#include <QDir>
#include <QTest>

namespace {

const QString Waiting = QStringLiteral("Waiting");
const QString Sent = QStringLiteral("Sent");

void setPacing(WorkspaceRig &rig, const char *packetSize, const char *delay)
{
    rig.w.form.setText(Control::txtNMsg, QString::fromLatin1(packetSize));
    rig.w.form.setText(Control::txtPausa, QString::fromLatin1(delay));
}

void tickSeconds(WorkspaceRig &rig, int seconds)
{
    for (int i = 0; i < seconds; ++i)
        rig.Timer.tick();
}

} // namespace

void TestPacing::aDelayOfZeroStartsTheNextPacketOneSecondLater()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    setPacing(rig, "1", "0");
    rig.startSending();
    rig.finishMessage();
    QCOMPARE(rig.smtp.connections.size(), 1);
    QVERIFY(rig.Timer.isEnabled());
    rig.Timer.tick();
    QCOMPARE(rig.smtp.connections.size(), 2);
}

void TestPacing::aDelayOfTwoMinutesIsCountedDown()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    setPacing(rig, "1", "2");
    rig.startSending();
    rig.finishMessage();
    rig.Timer.tick();
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("1 minutes..."));
    tickSeconds(rig, 59);
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("1 minutes..."));
    rig.Timer.tick();
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("59 seconds..."));
    tickSeconds(rig, 58);
    QCOMPARE(rig.smtp.connections.size(), 1);
    rig.Timer.tick();
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Sending..."));
    QCOMPARE(rig.smtp.connections.size(), 2);
    QVERIFY(!rig.Timer.isEnabled());
}

void TestPacing::elapsedTimeIsShownEachSecond()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    for (int i = 0; i < 59; ++i)
        rig.Timer2.tick();
    QCOMPARE(rig.label(Control::lblTrascorso), QStringLiteral("00:59"));
    QCOMPARE(rig.w.form.tag(Control::lblTrascorso), QStringLiteral("59"));
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("--:--"));
}

void TestPacing::elapsedTextThatIsNoNumberShowsNoTime()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    rig.w.form.setTag(Control::lblTrascorso, QStringLiteral("long"));
    rig.w.form.setText(Control::lblRimanente, QStringLiteral("00:10"));
    rig.Timer2.tick();
    QCOMPARE(rig.label(Control::lblTrascorso), QStringLiteral("--:--"));
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("--:--"));
}

void TestPacing::theEstimateWaitsForTheFirstDuration()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    setPacing(rig, "2", "1");
    rig.startSending();
    rig.Timer2.tick();
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("--:--"));
    rig.clock.advanceMilliseconds(4000);
    rig.smtp.raiseDone(true);
    rig.Timer2.tick();
    // One wait of a minute and two messages of four seconds.
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("01:08"));
}

void TestPacing::theEstimateIsLeftAloneDuringATransfer()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.startSending();
    rig.clock.advanceMilliseconds(4000);
    rig.finishMessage();
    rig.smtp.statusFlag = 1;
    rig.Timer2.tick();
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("--:--"));
    QCOMPARE(rig.label(Control::lblTrascorso), QStringLiteral("00:01"));
}

void TestPacing::aPacketSizeOfZeroShowsNoRemainingTime()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.startSending();
    rig.clock.advanceMilliseconds(4000);
    rig.finishMessage();
    rig.w.form.setText(Control::txtNMsg, QStringLiteral("0"));
    rig.w.form.setText(Control::lblRimanente, QStringLiteral("00:10"));
    rig.Timer2.tick();
    rig.Timer2.tick();
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("--:--"));
    QCOMPARE(rig.label(Control::lblTrascorso), QStringLiteral("00:02"));
}

void TestPacing::aPauseInsideAPacketResumesOneTickLater()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    setPacing(rig, "10", "5");
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
    rig.finishMessage();
    QCOMPARE(rig.smtp.calls.last(), QStringLiteral("Disconnect"));
    QCOMPARE(rig.smtp.sent.size(), 1);
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("1 seconds..."));
    rig.Timer.tick();
    QCOMPARE(rig.smtp.connections.size(), 2);
    rig.smtp.raiseReady();
    QCOMPARE(rig.addressesSent().last(), QStringLiteral("a2@example.net"));
}

void TestPacing::aPauseInsideAWaitKeepsTheWait()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    setPacing(rig, "1", "1");
    rig.startSending();
    rig.finishMessage();
    tickSeconds(rig, 20);
    rig.w.engine.cmdPausa_Click();
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("40 seconds..."));
    tickSeconds(rig, 39);
    QCOMPARE(rig.smtp.connections.size(), 1);
    rig.Timer.tick();
    QCOMPARE(rig.smtp.connections.size(), 2);
}

void TestPacing::aPauseLetsTheMessageInFlightFinish()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.state(1), QStringLiteral("Sending..."));
    rig.finishMessage();
    QCOMPARE(rig.states(), (QStringList{Sent, Waiting}));
    QCOMPARE(rig.w.form.runState(), RunState::Paused);
    QVERIFY(!rig.Timer.isEnabled());
    QVERIFY(!rig.Timer2.isEnabled());
}

void TestPacing::aPausedRunStopsItsTimersAndFreesTheFileCommands()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    QVERIFY(!rig.w.form.isEnabled(Control::cmdSave));
    QCOMPARE(rig.w.form.tag(Control::cmdPausa), QStringLiteral("Pause"));
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Pause..."));
    QCOMPARE(rig.w.form.tag(Control::cmdPausa), QStringLiteral("Resume"));
    QVERIFY(!rig.Timer.isEnabled());
    QVERIFY(!rig.Timer2.isEnabled());
    for (const Control command :
         {Control::cmdNuovo, Control::cmdApri, Control::cmdSave, Control::cmdSaveAs})
        QVERIFY(rig.w.form.isEnabled(command));
    QVERIFY(!rig.w.form.isEnabled(Control::cmdAvvio));
    rig.w.engine.cmdPausa_Click();
    QVERIFY(!rig.w.form.isEnabled(Control::cmdSave));
    QVERIFY(rig.Timer.isEnabled());
    QVERIFY(rig.Timer2.isEnabled());
}

void TestPacing::theLastMessageOfARunPausedMeanwhileEndsTheRun()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
    rig.finishMessage();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{QStringLiteral("Sending of the messages ended.")});
}

void TestPacing::resumingCountsTheRowsThatAreLeft()
{
    WorkspaceRig rig;
    rig.fillForm(5);
    rig.uncheck(4);
    setPacing(rig, "10", "0");
    rig.startSending();
    rig.clock.advanceMilliseconds(3000);
    rig.finishMessage();
    rig.w.engine.cmdPausa_Click();
    rig.clock.advanceMilliseconds(3000);
    rig.finishMessage();
    rig.w.engine.cmdPausa_Click();
    rig.Timer2.tick();
    // Rows 3 and 5, three seconds each, no wait: (10 + 2 - 0 - 1) / 10 waits of no minutes.
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("00:07"));
}

void TestPacing::pauseAndResumeAreLogged()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.logged();
    rig.w.engine.cmdPausa_Click();
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.logged(), (QStringList{QStringLiteral("User has pressed the pause command"),
                                        QStringLiteral("User has pressed the resume command")}));
}

void TestPacing::resumeRefusesInvalidPacketNumbers_data()
{
    QTest::addColumn<QString>("packetSize");
    QTest::addColumn<QString>("delay");
    QTest::addColumn<QString>("refusal");
    const QString both = QStringLiteral(
        "Specify the number of messages per packet and the delay between every packet");
    const QString number = QStringLiteral("Specify a valid number of messages per packet");
    QTest::newRow("empty") << QString() << QStringLiteral("0") << both;
    QTest::newRow("zero") << QStringLiteral("0") << QStringLiteral("0") << number;
    QTest::newRow("no number") << QStringLiteral("x") << QStringLiteral("0") << number;
    QTest::newRow("negative delay") << QStringLiteral("5") << QStringLiteral("-1") << both;
}

void TestPacing::resumeRefusesInvalidPacketNumbers()
{
    QFETCH(QString, packetSize);
    QFETCH(QString, delay);
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.w.engine.cmdPausa_Click();
    rig.w.form.setText(Control::txtNMsg, packetSize);
    rig.w.form.setText(Control::txtPausa, delay);
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.w.form.runState(), RunState::Paused);
    QTEST(rig.prompts.takeNoticeTexts().value(0), "refusal");
}

void TestPacing::cancellingTheStopQuestionLeavesTheCountdownAsItWas()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    setPacing(rig, "1", "1");
    rig.startSending();
    rig.finishMessage();
    tickSeconds(rig, 10);
    const QString before = rig.label(Control::lblTimer);
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Cancel);
    rig.w.engine.cmdStop_Click();
    QVERIFY(!rig.Timer.isEnabled());
    QVERIFY(rig.Timer2.isEnabled());
    rig.prompts.answerAll();
    QVERIFY(rig.Timer.isEnabled());
    QCOMPARE(rig.label(Control::lblTimer), before);
    rig.Timer.tick();
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("49 seconds..."));
    const Question question = rig.prompts.questions.last();
    QCOMPARE(question.title, QStringLiteral("Stop"));
    QCOMPARE(question.text, QStringLiteral("Stop the procedure?"));
    QVERIFY(question.buttons == Buttons::OkCancel);
    QVERIFY(question.icon == Icon::Exclamation);
}

void TestPacing::stoppingEndsTheRunAndMarksTheProject()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.logged();
    QVERIFY(!rig.w.form.projectModified());
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Ok);
    rig.w.engine.cmdStop_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Not started"));
    QVERIFY(!rig.Timer.isEnabled());
    QVERIFY(!rig.Timer2.isEnabled());
    QVERIFY(rig.w.form.projectModified());
    QCOMPARE(rig.logged(), (QStringList{QStringLiteral("User has pressed the stop command"),
                                        QStringLiteral("Sending procedure stopped")}));
}

void TestPacing::stoppingRemovesExactlyTheControlRow()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, QStringLiteral("a2@example.net"));
    rig.start();
    QCOMPARE(rig.w.recipients.count(), 3);
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Ok);
    rig.w.engine.cmdStop_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.recipients.count(), 2);
    QCOMPARE(rig.w.recipients.at(2).name, QStringLiteral("Name 2"));
}

void TestPacing::aStoppedRunKeepsTheShownElapsedTime()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    rig.Timer2.tick();
    rig.w.form.setText(Control::lblRimanente, QStringLiteral("00:10"));
    rig.w.engine.StopSending();
    QCOMPARE(rig.label(Control::lblTrascorso), QStringLiteral("00:01"));
    QCOMPARE(rig.w.form.tag(Control::lblTrascorso), QStringLiteral("0"));
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("--:--"));
    QCOMPARE(rig.w.form.tag(Control::lblRimanente), QStringLiteral("-"));
}

void TestPacing::stoppingEmptiesTheWorkingFolder()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.file(QStringLiteral("pic.gif"), "GIF89a");
    rig.useHtmlMessage("<img src=\"PIC.gif\">");
    rig.start();
    const QDir temp(rig.folder.filePath(QStringLiteral("Temp")));
    QCOMPARE(temp.entryList(QDir::Files), QStringList{QStringLiteral("pic.gif")});
    rig.w.engine.StopSending();
    QVERIFY(temp.exists());
    QCOMPARE(temp.entryList(QDir::Files), QStringList());
}

void TestPacing::aRunShowsThatItWaitsForALogin()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.Timer.tick();
    Q_EMIT rig.smtp.LoginAwaited(true);
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Waiting for the login..."));
    QVERIFY(rig.w.form.isEnabled(Control::cmdStop));
    Q_EMIT rig.smtp.LoginAwaited(false);
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Sending..."));
}

void TestPacing::aPausedRunShowsItsPauseWhileALoginIsAwaited()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.Timer.tick();
    Q_EMIT rig.smtp.LoginAwaited(true);
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Pause..."));
    Q_EMIT rig.smtp.LoginAwaited(false);
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Pause..."));
}

void TestPacing::aStoppedRunLeavesTheLabelAloneWhenItsLoginComes()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.Timer.tick();
    Q_EMIT rig.smtp.LoginAwaited(true);
    rig.w.engine.StopSending();
    Q_EMIT rig.smtp.LoginAwaited(false);
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Not started"));
}

void TestPacing::anEnteredPauseIsResumedWithinASecond()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.w.engine.setNextRecipientIndex(2);
    QVERIFY(rig.w.engine.loadBodies());
    rig.logged();
    rig.w.engine.EnterPausedState();
    QCOMPARE(rig.logged(), QStringList{QStringLiteral("Sending procedure paused")});
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Pause..."));
    QCOMPARE(rig.w.form.runState(), RunState::Paused);
    rig.w.engine.cmdPausa_Click();
    rig.Timer.tick();
    rig.smtp.raiseReady();
    QCOMPARE(rig.addressesSent(), QStringList{QStringLiteral("a2@example.net")});
}

void TestPacing::aTimerThatFailsEndsTheRun()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.w.form.setText(Control::txtNMsg, QStringLiteral("many"));
    rig.Timer.tick();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QVERIFY(notices.front().icon == Icon::Critical);
    QCOMPARE(notices.front().title, QStringLiteral("Error"));
    QVERIFY(!rig.smtp.calls.contains(QStringLiteral("Connect")));
}
