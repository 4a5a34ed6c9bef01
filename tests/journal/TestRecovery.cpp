#include "TestRecovery.h"

#include "JournalRig.h"
#include "project/WindowLifecycle.h"
#include "support/ItalianTexts.h"

using namespace Qt::StringLiterals;

namespace {

const ServerReply Taken{SmtpVerb::Bdat, 250, u"2.0.0"_s, u"queued as 4X1"_s};

// Four recipients: one was sent the message, one is in doubt, two are left.
void killInTheMiddle(JournalRig &j, Language language = Language::English)
{
    j.save();
    j.rig->startSending();
    j.rig->smtp.raiseDone(true, {Taken});
    j.rig->smtp.raiseReady();
    j.die(language);
}

// The project of a paused run, whose message is in flight, is opened once more.
void openAgain(JournalRig &j, Answer answer)
{
    j.save();
    j.rig->startSending();
    j.pauseOrResume();
    j.rig->prompts.expectAnswer(Topic::InterruptedRun, answer);
    j.rig->w.projectCommands.openAsking(j.path(),
                                        [&j] { j.rig->w.projectCommands.open(j.path()); });
    QCOMPARE(j.rig->prompts.openBoxes(), 1);
}

} // namespace

void TestRecovery::theQuestionSaysHowManyWereSentAreInDoubtAndAreLeft_data()
{
    QTest::addColumn<bool>("italian");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("numbers");
    QTest::newRow("English") << false << u"Interrupted run"_s
                             << u"1 of 1,450 sent, 1 refused, 1 in doubt, 1,447 left."_s;
    QTest::newRow("Italian") << true << u"Invio interrotto"_s
                             << u"1 di 1.450 inviato, 1 rifiutato, 1 in dubbio, 1.447 rimasti."_s;
}

void TestRecovery::theQuestionSaysHowManyWereSentAreInDoubtAndAreLeft()
{
    QFETCH(bool, italian);
    QFETCH(QString, title);
    QFETCH(QString, numbers);
    const Language language = italian ? Language::Italian : Language::English;
    std::optional<ItalianTexts> texts;
    if (italian)
        texts.emplace();
    JournalRig j(language);
    j.fillForm(1450);
    j.rig->w.form.setText(Control::txtNMsg, u"2000"_s);
    j.save();
    j.rig->startSending();
    j.rig->finishMessage(true);
    j.rig->finishMessage(false);
    j.die(language);
    j.openAnswering(Answer::Cancel);
    const Question question = j.rig->prompts.questions.constLast();
    QCOMPARE(question.title, title);
    QVERIFY2(question.text.contains(numbers), qPrintable(question.text));
    QVERIFY(question.text.contains(u"mailing.svk"_s));
    QCOMPARE(question.buttons, Buttons::ContinueOpenForget);
}

void TestRecovery::continueShowsTheRunPausedWhereItStood()
{
    JournalRig j;
    killInTheMiddle(j);
    j.openAnswering(Answer::Continue);
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QCOMPARE(j.rig->w.form.projectPath(), j.path());
    QCOMPARE(j.rig->w.engine.nextRecipientIndex(), 3);
    QCOMPARE(j.rig->states(),
             QStringList({u"Sent"_s, u"Sending..."_s, u"Waiting"_s, u"Waiting"_s}));
    QCOMPARE(j.attempt(1).reply, Taken);
    QVERIFY(isInDoubt(j.rig->w.recipients.at(2)));
    QVERIFY(!j.attempt(2).identifier.isEmpty());
    QVERIFY(j.rig->w.form.caption().startsWith(u"mailing.svk"_s));
}

void TestRecovery::whoIsInDoubtIsNotSentAgain()
{
    JournalRig j;
    killInTheMiddle(j);
    j.openAnswering(Answer::Continue);
    j.pauseOrResume();
    QCOMPARE(j.records().size(), 1);
    j.rig->Timer.tick();
    j.rig->smtp.raiseReady();
    j.rig->finishMessage();
    j.rig->finishMessage();
    QCOMPARE(j.rig->addressesSent(), QStringList({u"a3@example.net"_s, u"a4@example.net"_s}));
    QCOMPARE(j.rig->states(), QStringList({u"Sent"_s, u"Sending..."_s, u"Sent"_s, u"Sent"_s}));
    QCOMPARE(j.rig->prompts.takeNotices().size(), 1);
    // Somebody is not accounted for: that stays on record until it is saved.
    j.journal->rowsSeen();
    QCOMPARE(j.records().size(), 1);
    j.save();
    QCOMPARE(j.records(), QStringList());
}

void TestRecovery::openAsItIsShowsWhatBecameOfEverybodyWithoutARun()
{
    JournalRig j;
    killInTheMiddle(j);
    j.openAnswering(Answer::OpenAsItIs);
    QCOMPARE(j.rig->w.form.runState(), RunState::Idle);
    QCOMPARE(j.rig->states(),
             QStringList({u"Sent"_s, u"Sending..."_s, u"Waiting"_s, u"Waiting"_s}));
    QCOMPARE(j.attempt(1).reply, Taken);
    QCOMPARE(j.records().size(), 1); // until it is saved, or another run is started
    j.rig->clock.advanceMilliseconds(1);
    j.rig->start();
    QCOMPARE(j.records().size(), 1);
    QVERIFY(!j.readRecord()->isOver);
}

void TestRecovery::forgetOpensTheFileAsItWasSaved()
{
    JournalRig j;
    killInTheMiddle(j);
    j.openAnswering(Answer::Forget);
    QCOMPARE(j.records(), QStringList());
    QCOMPARE(j.rig->w.form.runState(), RunState::Idle);
    QCOMPARE(j.rig->states(),
             QStringList({u"Waiting"_s, u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
}

void TestRecovery::aClosedQuestionOpensNothingAndIsAskedAgain()
{
    JournalRig j;
    killInTheMiddle(j);
    j.openAnswering(Answer::Cancel);
    QCOMPARE(j.rig->w.form.projectPath(), QString());
    QCOMPARE(j.rig->w.recipients.count(), 0);
    QCOMPARE(j.records().size(), 1);
    j.openAnswering(Answer::Continue);
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
}

void TestRecovery::aRunWithNobodyLeftCannotBeContinued()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    for (int i = 0; i < 4; ++i)
        j.rig->finishMessage();
    QCOMPARE(j.rig->prompts.takeNotices().size(), 1);
    j.die(); // before anybody has seen it
    j.openAnswering(Answer::OpenAsItIs);
    QCOMPARE(j.rig->prompts.questions.constLast().buttons, Buttons::OpenForget);
    QCOMPARE(j.rig->states(), QStringList({u"Sent"_s, u"Sent"_s, u"Sent"_s, u"Sent"_s}));
    j.journal->rowsSeen();
    QCOMPARE(j.records(), QStringList());
}

void TestRecovery::aProjectWithoutARunIsOpenedUnasked()
{
    JournalRig j;
    j.save(u"other.svk"_s);
    killInTheMiddle(j);
    j.rig->w.projectCommands.openAsking(
        j.path(u"other.svk"_s), [&j] { j.rig->w.projectCommands.open(j.path(u"other.svk"_s)); });
    QVERIFY(j.rig->prompts.questions.isEmpty());
    QCOMPARE(j.rig->w.form.projectPath(), j.path(u"other.svk"_s));
}

void TestRecovery::atStartTheNewestIsAskedAboutFirst()
{
    JournalRig j;
    for (const QString &name : {u"one.svk"_s, u"two.svk"_s}) {
        j.fillForm(4);
        j.save(name);
        j.rig->clock.advanceMilliseconds(1000);
        j.rig->startSending();
        const qint64 now = j.rig->clock.milliseconds();
        j.die();
        j.rig->clock.advanceMilliseconds(now - j.rig->clock.milliseconds());
    }
    j.rig->prompts.expectAnswer(Topic::InterruptedRun, Answer::Forget);
    j.rig->prompts.expectAnswer(Topic::InterruptedRun, Answer::Continue);
    j.recovery->atStart();
    j.rig->prompts.answerAll();
    QVERIFY(j.rig->prompts.questions[0].text.contains(u"two.svk"_s));
    QVERIFY(j.rig->prompts.questions[1].text.contains(u"one.svk"_s));
    QCOMPARE(j.rig->w.form.projectPath(), j.path(u"one.svk"_s));
    QCOMPARE(j.records().size(), 1);
}

void TestRecovery::aRunWithoutAProjectFileIsAskedAboutAtStart()
{
    JournalRig j;
    j.rig->startSending();
    j.die();
    j.rig->prompts.expectAnswer(Topic::InterruptedRun, Answer::Continue);
    j.recovery->atStart();
    j.rig->prompts.answerAll();
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QCOMPARE(j.rig->w.form.projectPath(), QString());
    QCOMPARE(j.rig->w.form.text(Control::txtOggetto), u"News"_s);
}

void TestRecovery::aRunThatSentNothingIsNotAskedAbout()
{
    JournalRig j;
    j.save();
    j.rig->start();
    j.die();
    QVERIFY(!j.recovery->leftRunOf(j.path()));
    j.recovery->atStart();
    QVERIFY(j.rig->prompts.questions.isEmpty());
}

void TestRecovery::aDamagedRecordIsSaidToBeDamaged()
{
    JournalRig j;
    killInTheMiddle(j);
    const QByteArray record = j.record();
    writeFile(j.path(u"Runs/"_s + j.records().front()), record + "rubbish\n");
    j.openAnswering(Answer::Cancel);
    QVERIFY(j.rig->prompts.questions.constLast().text.contains(u"damaged"_s));
}

void TestRecovery::aRecordThatCannotBeReadIsSaidAndStays()
{
    JournalRig j;
    killInTheMiddle(j);
    const QString file = j.path(u"Runs/"_s + j.records().front());
    writeFile(file, j.record().first(200));
    QVERIFY(!j.recovery->leftRunOf(j.path()));
    j.recovery->atStart();
    QCOMPARE(j.rig->prompts.takeNotices().value(0).detail, file);
    j.rig->w.projectCommands.openAsking(j.path(), [] {});
    QCOMPARE(j.rig->prompts.takeNotices().value(0).detail, file);
    QVERIFY(j.rig->prompts.questions.isEmpty());
    QVERIFY(QFile::exists(file));
}

void TestRecovery::aProjectWhoseRunAnotherProcessHasOpenIsNotOpened()
{
    JournalRig j;
    killInTheMiddle(j);
    const auto lock = RunLock::take(j.path(u"Runs/"_s + j.records().front()));
    QVERIFY(lock);
    j.recovery->atStart();
    j.rig->w.projectCommands.openAsking(j.path(), [] { QFAIL("it is opened"); });
    QVERIFY(j.rig->prompts.questions.isEmpty());
    QVERIFY(j.rig->prompts.takeNoticeTexts().value(0).contains(
        QString::number(QCoreApplication::applicationPid())));
}

void TestRecovery::nobodyElseRunsAProjectThatIsAskedAboutOrOpenAsItIs()
{
    JournalRig j;
    killInTheMiddle(j);
    j.rig->prompts.expectAnswer(Topic::InterruptedRun, Answer::OpenAsItIs);
    j.rig->w.projectCommands.openAsking(j.path(), [] {});
    QVERIFY(!RunLock::take(j.path()));
    j.rig->prompts.answerAll();
    QVERIFY(!RunLock::take(j.path()));
    j.save();
    QVERIFY(RunLock::take(j.path()));
}

void TestRecovery::whatBecameOfTheMessageInFlightBehindTheQuestionCounts()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.pauseOrResume();
    j.rig->prompts.expectAnswer(Topic::InterruptedRun, Answer::Continue);
    j.rig->w.projectCommands.openAsking(j.path(), [] {});
    j.rig->smtp.raiseDone(true, {Taken});
    j.rig->prompts.answerAll();
    QCOMPARE(j.rig->state(1), u"Sent"_s);
    QCOMPARE(j.attempt(1).reply, Taken);
}

void TestRecovery::aRunThatWasStoppedIsNotSaidToHaveBeenInterrupted()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.rig->smtp.raiseDone(true, {Taken});
    j.stop();
    j.die();
    j.openAnswering(Answer::Cancel);
    QVERIFY(j.rig->prompts.questions.constLast().text.contains(u"did not reach everybody"_s));
}

void TestRecovery::theProjectAtTheCommandLineIsAskedAbout()
{
    JournalRig j;
    killInTheMiddle(j);
    WindowLifecycle lifecycle(j.rig->w.form, j.rig->w.projectCommands, j.rig->w.projectFile,
                              j.rig->w.windowSettings, j.rig->w.engine, j.rig->prompts, [] {});
    j.rig->prompts.expectAnswer(Topic::InterruptedRun, Answer::Forget);
    lifecycle.Form_Load(j.path());
    QCOMPARE(j.rig->w.form.projectPath(), QString());
    j.rig->prompts.answerAll();
    QCOMPARE(j.rig->w.form.projectPath(), j.path());
    QVERIFY(!j.rig->w.form.projectModified());
}

void TestRecovery::aPausedRunOfThisWindowIsAskedAboutWhenItsProjectIsOpenedAgain()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.rig->smtp.raiseDone(true, {Taken});
    j.pauseOrResume();
    j.rig->smtp.raiseReady();
    j.openAnswering(Answer::Continue);
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QCOMPARE(j.rig->states().front(), u"Sent"_s);
    QCOMPARE(j.attempt(1).reply, Taken);
    j.pauseOrResume();
    j.rig->Timer.tick();
    j.rig->smtp.raiseReady();
    QCOMPARE(j.rig->addressesSent(), QStringList({u"a1@example.net"_s, u"a2@example.net"_s}));
    QCOMPARE(j.records().size(), 1);
}

void TestRecovery::aProjectOpenedAgainWhileItsMessageIsInFlightIsAskedAbout()
{
    JournalRig j;
    j.save(u"other.svk"_s);
    j.save();
    j.rig->startSending();
    j.pauseOrResume();
    j.rig->w.projectCommands.open(j.path(u"other.svk"_s));
    j.openAnswering(Answer::Continue);
    QCOMPARE(j.rig->state(1), u"Sending..."_s);
    QCOMPARE(j.rig->w.engine.nextRecipientIndex(), 2);
}

void TestRecovery::whatBecomesOfTheRunWhileTheQuestionIsOpenCounts()
{
    JournalRig j;
    openAgain(j, Answer::Continue);
    j.rig->smtp.raiseDone(true, {Taken});
    j.rig->prompts.answerAll();
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QCOMPARE(j.rig->states(), QStringList({u"Sent"_s, u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
    QCOMPARE(j.attempt(1).reply, Taken);
}

void TestRecovery::aRunThatGoesOnWhileTheQuestionIsOpenIsLeftAlone()
{
    JournalRig j;
    openAgain(j, Answer::Continue);
    j.rig->finishMessage();
    j.pauseOrResume();
    const Situation before = j.rig->w.form.situation();
    j.rig->prompts.answerAll();
    QCOMPARE(j.rig->w.form.situation(), before);
    QCOMPARE(j.rig->w.form.runState(), RunState::Waiting);
}

void TestRecovery::aRunThatIsSavedWhileTheQuestionIsOpenIsOpenedFromItsFile()
{
    JournalRig j;
    openAgain(j, Answer::OpenAsItIs);
    j.rig->finishMessage();
    j.save();
    QCOMPARE(j.records(), QStringList());
    j.rig->prompts.answerAll();
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QCOMPARE(j.rig->states(), QStringList({u"Sent"_s, u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
}

void TestRecovery::theControlRowGoesOnWithTheRunAndNotWithoutIt()
{
    JournalRig j;
    j.rig->w.form.setText(Control::txtControl, u"me@example.org"_s);
    killInTheMiddle(j);
    j.openAnswering(Answer::Continue);
    QCOMPARE(j.rig->w.recipients.count(), 5);
    j.stop();
    QCOMPARE(j.rig->w.recipients.count(), 4);
    j.die();
    j.openAnswering(Answer::OpenAsItIs);
    QCOMPARE(j.rig->w.recipients.count(), 4);
}

void TestRecovery::aRunContinuedAndKilledAgainIsContinuedAgain()
{
    JournalRig j;
    killInTheMiddle(j);
    j.openAnswering(Answer::Continue);
    j.pauseOrResume();
    j.rig->Timer.tick();
    j.rig->smtp.raiseReady();
    j.rig->smtp.raiseDone(true);
    j.die();
    QCOMPARE(j.records().size(), 1);
    j.openAnswering(Answer::Continue);
    QCOMPARE(j.rig->states(), QStringList({u"Sent"_s, u"Sending..."_s, u"Sent"_s, u"Waiting"_s}));
    QCOMPARE(j.rig->w.engine.nextRecipientIndex(), 4);
    QCOMPARE(j.attempt(1).reply, Taken);
}

void TestRecovery::aRecoveredRunCountsAsModified()
{
    JournalRig j;
    killInTheMiddle(j);
    j.openAnswering(Answer::OpenAsItIs);
    QVERIFY(j.rig->w.form.projectModified());
}
