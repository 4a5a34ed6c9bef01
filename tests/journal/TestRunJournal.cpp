#include "TestRunJournal.h"

#include "JournalRig.h"
#include "support/AsNobody.h"
#include "support/FileSizeLimit.h"

#include <QSignalSpy>

#include <sys/file.h>

using namespace Qt::StringLiterals;

namespace {

const ServerReply Taken{SmtpVerb::Bdat, 250, u"2.0.0"_s, u"queued as 4X1"_s};
const ServerReply Unknown{SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"no such user"_s};

// The lock of a process on another machine: whether it lives nobody here can know.
void lockElsewhere(const QString &file)
{
    writeFile(file + u".lock"_s, "4711\nsorvanta\nother-pc\nanother machine\nanother boot\n");
}

// The lock of a process of this machine that is gone.
void lockByNobody(const QString &file)
{
    constexpr int NoProcess = 4'194'304; // beyond the largest number that Linux gives
    const QByteArray host = readFile(u"/proc/sys/kernel/hostname"_s).trimmed();
    writeFile(file + u".lock"_s, QByteArray::number(NoProcess) + "\nsorvanta\n" + host + "\n\n\n");
}

enum Mode { ReadOnly, Writable };

// For everybody, since the tests may be those of root.
void setMode(const QString &folder, Mode mode)
{
    QFile::Permissions permissions = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                     QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    if (mode == Writable)
        permissions |= QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    QVERIFY(QFile::setPermissions(folder, permissions));
}

bool isLocked(const QString &file)
{
    return !RunLock::take(file);
}

QList<int> positionsOf(const QSignalSpy &rowDone)
{
    QList<int> positions;
    for (const QList<QVariant> &arguments : rowDone)
        positions.append(arguments.front().toInt());
    return positions;
}

QStringList recordedStates(const JournalRig &j)
{
    QStringList states;
    const auto record = j.readRecord();
    for (const Recipient &row : record->project.recipients)
        states.append(row.state);
    return states;
}

// Goes on as far as the run does; the server takes every message.
void sendToTheEnd(JournalRig &j)
{
    if (j.rig->w.form.runState() != RunState::Waiting)
        return;
    j.rig->Timer.tick();
    j.rig->smtp.raiseReady();
    while (j.rig->smtp.messageInFlight())
        j.rig->finishMessage();
}

// A run that gets so far as the disk has room.
void runWithRoomFor(JournalRig &j, rlim_t bytes)
{
    j.fillForm(2);
    const FileSizeLimit full(bytes);
    j.rig->start();
    sendToTheEnd(j);
}

} // namespace

void TestRunJournal::startWritesTheProjectAsItStands()
{
    JournalRig j;
    j.rig->w.form.setText(Control::txtControl, u"me@example.org"_s);
    j.save();
    j.rig->uncheck(2);
    j.rig->start();
    const auto record = j.readRecord();
    QCOMPARE(record->projectPath, j.path());
    QVERIFY(record->project.paused);
    QCOMPARE(record->project.nextRecipientIndex, 1);
    QCOMPARE(record->project.subject, u"News"_s);
    QCOMPARE(record->project.recipients.size(), std::size_t(5)); // with the control row
    QVERIFY(!record->project.recipients[1].checked);
    QVERIFY(!record->hasBegun());
}

void TestRunJournal::aMessageIsRecordedBeforeItIsHandedOver()
{
    JournalRig j;
    QStringList atHandOver;
    j.rig->smtp.onSend = [&] { atHandOver = recordedStates(j); };
    j.rig->startSending();
    QCOMPARE(atHandOver, QStringList({u"Sending..."_s, u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
    const QString identifier = j.attempt(1).identifier;
    QVERIFY(!identifier.isEmpty());
    QVERIFY(j.rig->smtp.ExtraHeaders.contains(identifier));
    QCOMPARE(j.readRecord()->project.recipients[0].attempt.identifier, identifier);
    QCOMPARE(j.attempt(1).outcome, Outcome::InFlight);
    QCOMPARE(j.attempt(1).tries, 1);
}

void TestRunJournal::resultsFollowWithWhatTheServerSaid()
{
    JournalRig j;
    j.rig->startSending();
    j.rig->smtp.raiseDone(true, {Taken});
    j.rig->smtp.raiseReady();
    j.rig->smtp.raiseDone(false, {Unknown});
    QCOMPARE(recordedStates(j), QStringList({u"Sent"_s, u"Error!"_s, u"Waiting"_s, u"Waiting"_s}));
    const auto record = j.readRecord();
    for (int position = 1; position <= 2; ++position)
        QCOMPARE(record->project.recipients[std::size_t(position - 1)].attempt,
                 j.attempt(position));
    QCOMPARE(j.attempt(1).reply, Taken);
    QCOMPARE(j.attempt(2).reply, Unknown);
    QCOMPARE(j.attempt(2).time, j.rig->clock.milliseconds());
}

void TestRunJournal::rowsOfAGroupWithTheSameReplyShareALine()
{
    JournalRig j;
    j.rig->w.form.setChecked(Control::chkMultiSend, true);
    j.rig->startSending();
    const qsizetype before = j.record().count('\n');
    j.rig->smtp.raiseDone(true, {Taken, Taken, Unknown, Taken});
    QCOMPARE(j.record().count('\n') - before, 3);
    QCOMPARE(recordedStates(j), QStringList({u"Sent"_s, u"Sent"_s, u"Error!"_s, u"Sent"_s}));
}

void TestRunJournal::resumeWritesTheProjectAnew()
{
    JournalRig j;
    j.rig->startSending();
    j.rig->smtp.raiseDone(true, {Taken});
    j.pauseOrResume();
    j.rig->smtp.raiseReady();
    const QStringList names = j.records();
    j.pauseOrResume();
    QCOMPARE(j.records(), names);
    const auto record = j.readRecord();
    QCOMPARE(record->project.nextRecipientIndex, 2);
    QCOMPARE(record->project.recipients[0].attempt, j.attempt(1));
    j.rig->Timer.tick();
    j.rig->smtp.raiseReady();
    QCOMPARE(recordedStates(j),
             QStringList({u"Sent"_s, u"Sending..."_s, u"Waiting"_s, u"Waiting"_s}));
}

void TestRunJournal::aMessageInFlightAtResumeIsInDoubtUntilItsResult()
{
    JournalRig j;
    j.rig->startSending();
    j.pauseOrResume();
    j.pauseOrResume();
    QCOMPARE(recordedStates(j).front(), u"Sending..."_s);
    QCOMPARE(j.readRecord()->project.nextRecipientIndex, 2);
    j.rig->smtp.raiseDone(true, {Taken});
    QCOMPARE(recordedStates(j).front(), u"Sent"_s);
    QCOMPARE(j.readRecord()->project.recipients[0].attempt.reply, Taken);
}

void TestRunJournal::aResultThatComesAfterAnotherProjectIsOpenedGoesToItsOwnRun()
{
    JournalRig j;
    j.save(u"other.svk"_s);
    j.save();
    j.rig->startSending();
    j.pauseOrResume();
    j.rig->w.projectCommands.open(j.path(u"other.svk"_s));
    QCOMPARE(recordedStates(j).front(), u"Sending..."_s);
    j.rig->smtp.raiseDone(true, {Taken});
    QCOMPARE(recordedStates(j).front(), u"Sent"_s);
    QCOMPARE(j.rig->state(1), u"Waiting"_s);
}

void TestRunJournal::aRunThatSentNothingLeavesNoRecord()
{
    JournalRig j;
    j.rig->start();
    QCOMPARE(j.records().size(), 1);
    j.rig->Timer.tick();
    j.rig->smtp.raiseError(4, u"connection refused"_s);
    QCOMPARE(j.records(), QStringList());
    QCOMPARE(j.rig->prompts.takeNoticeTexts(), QStringList(u"SMTP: Errorconnection refused"_s));
}

void TestRunJournal::theRecordOfACompleteRunStaysUntilItsRowsWereSeen()
{
    JournalRig j;
    j.rig->startSending();
    for (int i = 0; i < 4; ++i) {
        j.journal->rowsSeen(); // not while it goes on
        j.rig->finishMessage(i != 2);
    }
    QCOMPARE(j.rig->prompts.takeNoticeTexts(), QStringList(u"Sending ended."_s));
    QVERIFY(j.readRecord()->isOver);
    QCOMPARE(j.readRecord()->totals().refused, 1);
    j.journal->rowsSeen();
    QCOMPARE(j.records(), QStringList());
}

void TestRunJournal::theRecordOfAStoppedRunStaysUntilTheProjectIsSaved()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.rig->smtp.raiseDone(true);
    j.stop();
    j.journal->rowsSeen();
    QVERIFY(j.readRecord()->isOver);
    j.save();
    QCOMPARE(j.records(), QStringList());
}

void TestRunJournal::theRecordOfAPausedRunGoesWhenTheProjectIsSaved()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.pauseOrResume();
    j.rig->w.projectFile.SaveProject(j.path(), [](bool) {});
    QCOMPARE(j.records().size(), 1); // the file waits for the message too
    j.rig->smtp.raiseDone(true);
    QCOMPARE(j.records(), QStringList());
    j.rig->settle();
    j.pauseOrResume();
    QCOMPARE(j.readRecord()->project.nextRecipientIndex, 2);
}

void TestRunJournal::theRecordStaysWhenAnotherProjectIsOpened()
{
    JournalRig j;
    j.save(u"other.svk"_s);
    j.save();
    j.rig->startSending();
    j.rig->smtp.raiseDone(true);
    j.stop();
    j.rig->w.projectCommands.open(j.path(u"other.svk"_s));
    QCOMPARE(j.readRecord()->projectPath, j.path());
}

void TestRunJournal::anotherStartReplacesTheRecord()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.rig->smtp.raiseDone(true, {Taken});
    j.stop();
    const QStringList before = j.records();
    j.rig->clock.advanceMilliseconds(1);
    j.rig->start();
    QCOMPARE(j.records().size(), 1);
    QVERIFY(j.records() != before);
    QVERIFY(!j.readRecord()->isOver);
    // What the row was told before is still known.
    QCOMPARE(j.rig->state(1), u"Waiting"_s);
    QCOMPARE(j.readRecord()->project.recipients[0].attempt.reply, Taken);
}

void TestRunJournal::theNextMessageWaitsWhileTheDiskLagsBehind()
{
    JournalRig j;
    j.rig->startSending();
    j.rig->clock.advanceMilliseconds(51);
    j.rig->finishMessage();
    QCOMPARE(j.rig->smtp.sent.size(), 1);
    QCOMPARE(j.rig->state(1), u"Sent"_s);
    j.flushDisk();
    QCOMPARE(j.rig->smtp.sent.size(), 2);
    j.rig->finishMessage();
    QCOMPARE(j.rig->smtp.sent.size(), 3);
}

void TestRunJournal::whoIsPassedOverIsSaidOnceHoweverOftenTheDiskLagsBehind()
{
    JournalRig j;
    j.rig->uncheck(2);
    const QSignalSpy done(&j.rig->w.engine, &SendingEngine::rowDone);
    j.rig->startSending();
    j.rig->clock.advanceMilliseconds(51);
    j.rig->finishMessage();
    j.rig->smtp.raiseReady();
    j.rig->smtp.raiseReady();
    j.flushDisk();
    QCOMPARE(j.rig->addressesSent(), QStringList({u"a1@example.net"_s, u"a3@example.net"_s}));
    QCOMPARE(positionsOf(done), QList<int>({1, 2}));
    QCOMPARE(j.rig->state(2), u"Not sent"_s);
}

void TestRunJournal::aRunEndsWhenTheDiskHasCaughtUp()
{
    JournalRig j;
    j.fillForm(1);
    const QSignalSpy ended(&j.rig->w.engine, &SendingEngine::runEnded);
    j.rig->startSending();
    j.rig->clock.advanceMilliseconds(51);
    j.rig->finishMessage();
    QCOMPARE(ended.size(), 0);
    j.flushDisk();
    QCOMPARE(ended.size(), 1);
    QCOMPARE(j.rig->w.form.runState(), RunState::Idle);
    QCOMPARE(j.rig->prompts.takeNoticeTexts(), QStringList(u"Sending ended."_s));
}

void TestRunJournal::aRunThatWasStoppedMeanwhileDoesNotGoOn()
{
    JournalRig j;
    j.rig->startSending();
    j.rig->clock.advanceMilliseconds(51);
    j.rig->finishMessage();
    j.stop();
    j.flushDisk();
    QCOMPARE(j.rig->smtp.sent.size(), 1);
    QCOMPARE(j.rig->state(2), u"Waiting"_s);
}

void TestRunJournal::aFullDiskPausesTheRunAndResumeGoesOn()
{
    JournalRig j;
    const QSignalSpy halted(&j.rig->w.engine, &SendingEngine::runHalted);
    j.rig->startSending();
    {
        const FileSizeLimit full(rlim_t(j.record().size()) + 5);
        j.rig->finishMessage();
        QCOMPARE(j.rig->smtp.sent.size(), 1);
        QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
        QCOMPARE(halted.size(), 1);
        const QList<Notice> notices = j.rig->prompts.takeNotices();
        QCOMPARE(notices.size(), 1);
        QCOMPARE(notices[0].icon, Icon::Critical);
        QVERIFY(notices[0].detail.contains(j.records().front()));
        // What the window knows is more than what found room; nobody is told less.
        QCOMPARE(j.rig->states(),
                 QStringList({u"Sent"_s, u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
        QCOMPARE(recordedStates(j).front(), u"Sending..."_s);
        j.pauseOrResume();
        QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
        QCOMPARE(j.rig->prompts.takeNotices().size(), 1);
        QCOMPARE(recordedStates(j).front(), u"Sending..."_s);
    }
    j.pauseOrResume();
    QCOMPARE(recordedStates(j).front(), u"Sent"_s);
    j.rig->Timer.tick();
    j.rig->smtp.raiseReady();
    QCOMPARE(j.rig->addressesSent(), QStringList({u"a1@example.net"_s, u"a2@example.net"_s}));
}

void TestRunJournal::whoWasPassedOverBeforeAFullDiskIsNotSaidAgain_data()
{
    QTest::addColumn<bool>("inGroups");
    QTest::addColumn<QString>("address");
    QTest::newRow("one by one") << false << u"a2@example.net"_s;
    QTest::newRow("in groups") << true << u"a2@example.net,a4@example.net"_s;
}

void TestRunJournal::whoWasPassedOverBeforeAFullDiskIsNotSaidAgain()
{
    QFETCH(bool, inGroups);
    QFETCH(QString, address);
    JournalRig j;
    j.rig->uncheck(1);
    j.rig->uncheck(3);
    j.rig->w.form.setChecked(Control::chkMultiSend, inGroups);
    const QSignalSpy done(&j.rig->w.engine, &SendingEngine::rowDone);
    j.rig->start();
    {
        const FileSizeLimit full(rlim_t(j.record().size()) + 5);
        j.rig->Timer.tick();
        j.rig->smtp.raiseReady();
    }
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QCOMPARE(j.rig->prompts.takeNotices().size(), 1);
    const QList<int> passedOver = positionsOf(done);
    QCOMPARE(passedOver, inGroups ? QList<int>({1, 3}) : QList<int>({1}));
    j.pauseOrResume();
    j.rig->Timer.tick();
    j.rig->smtp.raiseReady();
    QCOMPARE(j.rig->addressesSent(), QStringList(address));
    QCOMPARE(positionsOf(done), passedOver);
}

// Either there is room again, or the program dies and another one goes on.
void TestRunJournal::whereverTheDiskIsFullEverybodyIsSentToOnce()
{
    const QStringList everybody{u"a1@example.net"_s, u"a2@example.net"_s};
    JournalRig whole;
    runWithRoomFor(whole, RLIM_INFINITY);
    QCOMPARE(whole.rig->prompts.takeNoticeTexts(), QStringList(u"Sending ended."_s));
    const auto beginning = static_cast<rlim_t>(whole.record().indexOf(" send\t"));
    forEachFullDisk(whole.record().size(), [&](rlim_t room) {
        // A record is begun as a whole: of the places in that, some are enough.
        constexpr rlim_t Some = 15;
        if (room % Some != 0 && room < beginning)
            return;
        JournalRig j;
        runWithRoomFor(j, room);
        const QStringList sent = j.rig->addressesSent();
        QCOMPARE(j.rig->prompts.takeNotices().size(), 1); // why it stands, or that it has ended
        // Who was handed over is on record, and nobody else.
        QCOMPARE(j.records().isEmpty(), room < beginning);
        if (!j.records().isEmpty()) {
            const QStringList states = recordedStates(j);
            for (int i = 0; i < everybody.size(); ++i)
                QCOMPARE(states[i] != u"Waiting", sent.contains(everybody[i]));
        }
        const bool dies = room % 2 == 1;
        if (dies) {
            j.die();
            j.fillForm(2);
            if (!sent.isEmpty()) {
                j.rig->prompts.expectAnswer(Topic::InterruptedRun, sent == everybody
                                                                       ? Answer::OpenAsItIs
                                                                       : Answer::Continue);
            }
            j.recovery->atStart();
            j.rig->prompts.answerAll();
        }
        const bool isPaused = j.rig->w.form.runState() == RunState::Paused;
        QCOMPARE(isPaused, sent != everybody && room >= beginning && !(dies && sent.isEmpty()));
        if (isPaused)
            j.pauseOrResume();
        else if (sent != everybody)
            j.rig->start();
        sendToTheEnd(j);
        QCOMPARE(dies ? sent + j.rig->addressesSent() : j.rig->addressesSent(), everybody);
        QVERIFY(!j.rig->states().contains(u"Waiting"_s));
        QVERIFY(dies || !j.rig->states().contains(u"Sending..."_s));
        QCOMPARE(j.rig->prompts.takeNoticeTexts(),
                 sent == everybody ? QStringList() : QStringList(u"Sending ended."_s));
    });
}

void TestRunJournal::aDiskThatFailsPausesTheRun()
{
    JournalRig j;
    j.rig->startSending();
    j.sync->start();
    j.sync->finish(tl::unexpected(FileError{u"/runs/a"_s, u"input/output error"_s}));
    j.rig->finishMessage();
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QCOMPARE(j.rig->prompts.takeNotices().value(0).detail, u"/runs/a: input/output error"_s);
    j.pauseOrResume();
    QCOMPARE(recordedStates(j).front(), u"Sent"_s);
    j.rig->Timer.tick();
    j.rig->smtp.raiseReady();
    QCOMPARE(j.rig->smtp.sent.size(), 2);
}

// What is open stays open: the run itself goes on.
void TestRunJournal::aFolderThatMayNoLongerBeWrittenLetsAPausedRunStand()
{
    JournalRig j;
    setMode(j.folder.path(), Writable);
    j.rig->startSending();
    setMode(j.path(u"Runs"_s), ReadOnly);
    {
        const AsNobody nobody;
        j.rig->finishMessage();
        QCOMPARE(j.rig->smtp.sent.size(), 2);
        j.pauseOrResume();
        j.rig->smtp.raiseDone(true, {Taken});
        const QByteArray before = j.record();
        j.pauseOrResume();
        QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
        QVERIFY(j.rig->prompts.takeNotices().value(0).detail.contains(j.records().front()));
        QCOMPARE(j.record(), before);
    }
    setMode(j.path(u"Runs"_s), Writable);
    QCOMPARE(recordedStates(j), QStringList({u"Sent"_s, u"Sent"_s, u"Waiting"_s, u"Waiting"_s}));
    j.pauseOrResume();
    QCOMPARE(j.rig->w.form.runState(), RunState::Waiting);
}

void TestRunJournal::aFolderThatMayNotBeWrittenLetsNoRunStart()
{
    JournalRig j;
    QVERIFY(QDir().mkpath(j.path(u"Runs"_s)));
    setMode(j.folder.path(), ReadOnly);
    setMode(j.path(u"Runs"_s), ReadOnly);
    {
        const AsNobody nobody;
        j.rig->start();
    }
    setMode(j.folder.path(), Writable);
    setMode(j.path(u"Runs"_s), Writable);
    QCOMPARE(j.rig->w.form.runState(), RunState::Idle);
    const QList<Notice> notices = j.rig->prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QVERIFY(notices[0].detail.startsWith(j.path(u"Runs/"_s)));
    QVERIFY(j.rig->smtp.calls.isEmpty());
}

void TestRunJournal::aProjectThatAnotherProcessRunsIsRefused()
{
    JournalRig j;
    j.save();
    j.rig->w.recipients.setState(1, u"Sent"_s);
    lockElsewhere(j.path());
    j.rig->start();
    QCOMPARE(j.rig->w.form.runState(), RunState::Idle);
    const QList<Notice> notices = j.rig->prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].text,
             u"Another program is running this project, or has a run of it that is "
             "not saved yet: process 4711 on other-pc. It cannot be run twice at "
             "the same time."_s);
    QCOMPARE(notices[0].detail,
             u"How far that run came is known on other-pc alone: it can be gone on with there. If "
             "that does not matter any more, delete the file %1.lock."_s.arg(j.path()));
    QCOMPARE(j.rig->state(1), u"Sent"_s);
    QCOMPARE(j.records(), QStringList());
    QFile::remove(j.path() + u".lock"_s);
    j.rig->start();
    QCOMPARE(j.rig->w.form.runState(), RunState::Waiting);
}

void TestRunJournal::aPausedProjectThatAnotherProcessRunsIsNotResumedLater()
{
    JournalRig j;
    j.rig->start();
    j.pauseOrResume();
    j.save();
    j.die();
    lockElsewhere(j.path());
    j.rig->w.projectCommands.open(j.path());
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QFile::remove(j.path() + u".lock"_s);
    // It was run meanwhile: what is shown here is not how far that came.
    j.pauseOrResume();
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QVERIFY(j.rig->prompts.takeNoticeTexts().value(0).contains(u"Open it again"_s));
    j.rig->w.projectCommands.open(j.path());
    j.pauseOrResume();
    QCOMPARE(j.rig->w.form.runState(), RunState::Waiting);
}

void TestRunJournal::aProjectThatAnotherProgramRanMeanwhileIsNotStarted()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.die(); // as another program would, while this one has the project open
    j.rig->w.projectCommands.open(j.path());
    j.rig->start();
    QCOMPARE(j.rig->w.form.runState(), RunState::Idle);
    QVERIFY(j.rig->prompts.takeNoticeTexts().value(0).contains(u"Open it again"_s));
    QCOMPARE(recordedStates(j).front(), u"Sending..."_s);
    QVERIFY(!isLocked(j.path()));
}

void TestRunJournal::aProjectWhoseFileWasChangedMeanwhileIsNeitherStartedNorSaved()
{
    JournalRig j;
    j.save();
    const QByteArray changed =
        readFile(j.path()) + "5\r\nE\r\ne@example.net\r\nSent\r\n 2 \r\ncheck\r\n";
    writeFile(j.path(), changed);
    j.rig->start();
    QCOMPARE(j.rig->w.form.runState(), RunState::Idle);
    QVERIFY(j.rig->prompts.takeNoticeTexts().value(0).contains(u"Open it again"_s));
    j.rig->w.projectCommands.cmdSave_Click();
    QCOMPARE(j.rig->prompts.takeNotices().value(0).detail, j.path());
    QCOMPARE(readFile(j.path()), changed);
    j.rig->w.projectCommands.open(j.path());
    j.rig->start();
    QCOMPARE(j.rig->w.form.runState(), RunState::Waiting);
}

void TestRunJournal::uncheckingWhoIsInDoubtDoesNotAccountForHim()
{
    JournalRig j;
    j.rig->startSending();
    for (int i = 0; i < 3; ++i)
        j.rig->finishMessage();
    j.rig->smtp.raiseError(1, u"broken"_s, true);
    QCOMPARE(j.rig->prompts.takeNotices().size(), 1);
    QCOMPARE(j.rig->state(4), u"Sending..."_s);
    j.rig->uncheck(4);
    j.journal->rowsSeen();
    QCOMPARE(j.records().size(), 1);
}

void TestRunJournal::aStartThatFailsLeavesTheRecordOfTheRunBefore()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.rig->smtp.raiseDone(true, {Taken});
    j.stop();
    QVERIFY(QFile::remove(j.path(u"message.txt"_s)));
    j.rig->start();
    QCOMPARE(j.rig->prompts.takeNotices().size(), 1);
    QCOMPARE(j.rig->state(1), u"Waiting"_s);
    // What the file says now is less than what is known.
    j.save();
    QCOMPARE(recordedStates(j).front(), u"Sent"_s);
}

void TestRunJournal::aHandOverThatDidNotComeToPassIsNotRecordedLater()
{
    JournalRig j;
    j.rig->startSending();
    {
        const FileSizeLimit full(rlim_t(j.record().size()) + 5);
        j.rig->finishMessage();
    }
    QCOMPARE(j.rig->prompts.takeNotices().size(), 1);
    j.stop();
    QCOMPARE(recordedStates(j), QStringList({u"Sent"_s, u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
}

void TestRunJournal::aPauseWhileTheDiskLagsEndsTheSessionWhenItIsSaved()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.rig->clock.advanceMilliseconds(51);
    j.rig->finishMessage();
    j.pauseOrResume();
    j.save();
    j.rig->settle();
    QCOMPARE(j.rig->smtp.calls.last(), u"Disconnect"_s);
    QCOMPARE(j.rig->smtp.sent.size(), 1);
}

void TestRunJournal::theLockOfAProcessThatIsGoneIsTakenOver()
{
    JournalRig j;
    j.save();
    lockByNobody(j.path());
    j.rig->start();
    QCOMPARE(j.rig->w.form.runState(), RunState::Waiting);
}

void TestRunJournal::aLockWhoseProcessDiedBeforeItSaidSoIsTakenOver()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"mailing.svk"_s);
    writeFile(file + u".lock"_s, {});
    QVERIFY(RunLock::take(file));
    // It died while it took over the lock of another one.
    lockByNobody(file);
    writeFile(file + u".lock.rmlock"_s, {});
    QVERIFY(RunLock::take(file));
    // It lives, and is about to say so.
    QFile lock(file + u".lock"_s);
    QVERIFY(lock.open(QIODevice::WriteOnly));
    QCOMPARE(::flock(lock.handle(), LOCK_EX | LOCK_NB), 0);
    const auto refused = RunLock::take(file);
    QVERIFY(!refused && refused.error().isHeld);
}

void TestRunJournal::aProjectInAFolderThatMayNotBeWrittenIsLockedElsewhere()
{
    JournalRig j;
    for (const QString &name : {u"read-only"_s, u"Runs"_s})
        QVERIFY(QDir().mkpath(j.path(name)));
    const QString project = j.path(u"read-only/mailing.svk"_s);
    j.rig->w.projectFile.SaveProject(project, [](bool saved) { QVERIFY(saved); });
    setMode(j.path(u"read-only"_s), ReadOnly);
    setMode(j.path(u"Runs"_s), Writable);
    setMode(j.folder.path(), Writable);
    {
        const AsNobody nobody;
        j.rig->start();
        QCOMPARE(j.rig->w.form.runState(), RunState::Waiting);
        QVERIFY(!QFile::exists(project + u".lock"_s));
        QVERIFY(isLocked(RunFolder(j.folder.path()).standInFor(project)));
    }
    setMode(j.path(u"read-only"_s), Writable);
}

void TestRunJournal::aPausedRunKeepsItsLockAndAStoppedOneDoesNot()
{
    JournalRig j;
    j.save();
    j.rig->start();
    QVERIFY(isLocked(j.path()));
    j.pauseOrResume();
    j.save();
    QVERIFY(isLocked(j.path()));
    j.stop();
    QVERIFY(!isLocked(j.path()));
    j.rig->w.projectCommands.open(j.path());
    QCOMPARE(j.rig->w.form.runState(), RunState::Paused);
    QVERIFY(isLocked(j.path()));
    j.journal->close();
    QVERIFY(!isLocked(j.path()));
}

void TestRunJournal::aStoppedRunKeepsItsLockUntilTheProjectIsSaved()
{
    JournalRig j;
    j.save();
    j.rig->startSending();
    j.rig->smtp.raiseDone(true);
    j.stop();
    QVERIFY(isLocked(j.path()));
    j.save();
    QVERIFY(!isLocked(j.path()));
}

void TestRunJournal::aRunThatSentNothingKeepsWhatIsKnownOfAnEarlierOne()
{
    JournalRig j;
    j.rig->startSending();
    j.rig->smtp.raiseDone(true, {Taken});
    j.stop();
    j.rig->clock.advanceMilliseconds(1);
    j.rig->start();
    j.rig->Timer.tick();
    j.rig->smtp.raiseError(4, u"connection refused"_s);
    QCOMPARE(j.readRecord()->project.recipients[0].attempt.reply, Taken);
    QCOMPARE(j.rig->prompts.takeNotices().size(), 1);
}

void TestRunJournal::theLockFollowsAProjectSavedUnderAnotherName()
{
    JournalRig j;
    j.rig->start();
    j.pauseOrResume();
    j.save(u"one.svk"_s);
    QVERIFY(isLocked(j.path(u"one.svk"_s)));
    j.save(u"two.svk"_s);
    QVERIFY(!isLocked(j.path(u"one.svk"_s)));
    QVERIFY(isLocked(j.path(u"two.svk"_s)));
}
