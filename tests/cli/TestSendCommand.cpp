#include "TestSendCommand.h"

#include "CliRig.h"
#include "cli/SendCommand.h"
#include "support/FileSizeLimit.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

namespace {

// A project on disk, and the command that sends it with a client in memory.
class SendRig : public CliRig
{
public:
    using CliRig::CliRig;

    /// Starts the command and lets it come to where it waits for the clock or the server.
    void start(SendOptions options = {})
    {
        options.project = path;
        exitCode.reset();
        command.emplace(options, surroundings());
        QObject::connect(&*command, &SendCommand::finished, &smtp,
                         [this](ExitCode code) { exitCode = code; });
        command->start();
        settle();
    }
    /// Starts, and hands the first message over.
    void startSending(SendOptions options = {})
    {
        start(std::move(options));
        Timer.tick();
        smtp.raiseReady();
    }
    /// The result of the message in flight, and the session ready for the next.
    void finishMessage()
    {
        smtp.raiseDone(true);
        smtp.raiseReady();
        settle();
    }
    /// Runs to the end: ticks, and a server that takes what `accepts` says.
    void run(SendOptions options = {})
    {
        smtp.automatic = true;
        start(std::move(options));
        constexpr int Limit = 100;
        for (int i = 0; i < Limit && !exitCode; ++i) {
            Timer.tick();
            settle();
        }
        if (!exitCode)
            QTest::qFail("the command does not end", __FILE__, __LINE__);
    }
    [[nodiscard]] ProjectData saved() const
    {
        return decodeProject(QString::fromLatin1(WorkspaceRig::contentOf(path)))
            .value_or(ProjectData());
    }
    [[nodiscard]] QStringList savedStates() const
    {
        QStringList states;
        for (const Recipient &row : saved().recipients)
            states.append(row.state);
        return states;
    }
    [[nodiscard]] QStringList addressesSent() const
    {
        QStringList all;
        for (const FakeSmtp::SentMessage &message : smtp.sent)
            all.append(message.message.RecipientAddress);
        return all;
    }

    /// The program is gone, in the middle of whatever it did.
    void die()
    {
        command.reset();
        if (smtp.messageInFlight())
            smtp.raiseDone(false);
    }
    /// A run that died with the first row sent, the second in flight and the third waiting.
    void leaveRunBehind()
    {
        saveProject();
        startSending();
        finishMessage();
        die();
    }
    [[nodiscard]] QStringList records() const
    {
        return QDir(author.folder.filePath(QStringLiteral("Runs")))
            .entryList({QStringLiteral("*.run")});
    }
    [[nodiscard]] qint64 sizeOfRecord() const
    {
        return QFileInfo(author.folder.filePath(QStringLiteral("Runs/") + records().constFirst()))
            .size();
    }
    [[nodiscard]] QString summary() const { return results.lines().constLast(); }
    /// What a report gives after that label, or of the row with that number.
    [[nodiscard]] QString reported(const QString &beginning) const
    {
        const QStringList lines =
            QString::fromUtf8(WorkspaceRig::contentOf(report)).split(QStringLiteral("\r\n"));
        for (const QString &line : lines) {
            if (line.startsWith(beginning + u';'))
                return line.sliced(beginning.size() + 1);
        }
        return {};
    }
    [[nodiscard]] SendOptions withReport() const
    {
        SendOptions options;
        options.report = report;
        return options;
    }

    const QString report = author.folder.filePath(QStringLiteral("report.csv"));
    std::optional<SendCommand> command;
    std::optional<ExitCode> exitCode;
};

const QString Waiting = QStringLiteral("Waiting");
const QString Sending = QStringLiteral("Sending...");
const QString Sent = QStringLiteral("Sent");
const QString Error = QStringLiteral("Error!");
const QString NotSent = QStringLiteral("Not sent");

SendOptions toGoOn()
{
    SendOptions options;
    options.goOn = true;
    return options;
}

SendOptions forTheRest()
{
    SendOptions options;
    options.rest = true;
    return options;
}

SendOptions toEverybodyAgain()
{
    SendOptions options;
    options.again = true;
    return options;
}

SendOptions withSave()
{
    SendOptions options;
    options.save = true;
    return options;
}

bool isFirst(const FakeSmtp::SentMessage &message)
{
    return message.message.RecipientAddress == QStringLiteral("a1@example.net");
}

} // namespace

void TestSendCommand::everyRowSentIsSuccess()
{
    SendRig rig;
    rig.saveProject();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.smtp.sent.size(), 3);
}

void TestSendCommand::aRefusedRowIsSaid()
{
    SendRig rig;
    rig.saveProject();
    rig.smtp.accepts = [](const FakeSmtp::SentMessage &message) { return !isFirst(message); };
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::SomeRefused);
    QCOMPARE(rig.smtp.sent.size(), 3);
}

void TestSendCommand::aRefusedControlCopyIsSaid()
{
    SendRig rig;
    rig.author.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.saveProject();
    rig.smtp.accepts = [](const FakeSmtp::SentMessage &message) {
        return message.message.RecipientAddress != QStringLiteral("me@example.org");
    };
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::SomeRefused);
}

void TestSendCommand::whatStartRefusesIsNotBegun()
{
    SendRig rig;
    rig.author.w.form.setText(Control::txtOggetto, {});
    rig.saveProject();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QVERIFY(rig.smtp.calls.isEmpty());
}

void TestSendCommand::aFileThatIsNoProjectIsNotBegun()
{
    SendRig rig;
    rig.author.file(QStringLiteral("mailing.svk"), "v1.0\r\n");
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
}

void TestSendCommand::aFileCutInsideARecipientIsNotBegun()
{
    SendRig rig;
    rig.saveProject();
    const QByteArray whole = WorkspaceRig::contentOf(rig.path);
    rig.author.file(QStringLiteral("mailing.svk"), whole.first(whole.size() - 30));
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QVERIFY(rig.smtp.calls.isEmpty());
}

void TestSendCommand::linkedPicturesThatWillNotTravelNeedYes()
{
    SendRig rig;
    rig.author.useHtmlMessage("<img src=\"http://www.example.org/a.gif\">");
    rig.saveProject();
    rig.smtp.takeRelatedFile = [](const QString &) { return QString(); };
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QVERIFY(rig.smtp.sent.isEmpty());
    SendOptions options;
    options.yes = true;
    rig.run(options);
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QVERIFY(rig.smtp.sent.front().message.HtmlBody.contains(QStringLiteral("http://www.example")));
}

void TestSendCommand::aRunWithoutSaveLeavesTheProject()
{
    SendRig rig;
    rig.saveProject();
    const QByteArray before = WorkspaceRig::contentOf(rig.path);
    rig.run();
    QCOMPARE(WorkspaceRig::contentOf(rig.path), before);
}

void TestSendCommand::saveWritesTheStatesBack()
{
    SendRig rig;
    rig.saveProject();
    rig.smtp.accepts = [](const FakeSmtp::SentMessage &message) { return !isFirst(message); };
    rig.run(withSave());
    QCOMPARE(rig.exitCode, ExitCode::SomeRefused);
    QVERIFY(!rig.saved().paused);
    QCOMPARE(rig.savedStates(), (QStringList{Error, Sent, Sent}));
}

void TestSendCommand::aProjectWithSentRowsNeedsAWord_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("sent") << Sent;
    QTest::newRow("in doubt") << Sending;
    QTest::newRow("sent, by the Italian window") << QStringLiteral("Inviato");
    QTest::newRow("in doubt, by the Italian window") << QStringLiteral("Invio...");
}

void TestSendCommand::aProjectWithSentRowsNeedsAWord()
{
    QFETCH(QString, word);
    SendRig rig;
    rig.author.w.recipients.setState(2, word);
    rig.saveProject();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QVERIFY(rig.smtp.sent.isEmpty());
    rig.run(forTheRest());
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.addressesSent(),
             (QStringList{QStringLiteral("a1@example.net"), QStringLiteral("a3@example.net")}));
}

void TestSendCommand::againSendsToEverybody()
{
    SendRig rig;
    rig.author.w.recipients.setState(2, Sent);
    rig.saveProject();
    rig.run(toEverybodyAgain());
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.smtp.sent.size(), 3);
}

void TestSendCommand::restWithNothingLeftSendsNothing()
{
    SendRig rig(1);
    rig.author.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.author.w.recipients.setState(1, Sent);
    rig.saveProject();
    rig.run(forTheRest());
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QVERIFY(rig.smtp.calls.isEmpty());
}

void TestSendCommand::aSessionThatFailsIsSaidAndWrittenBack()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.finishMessage();
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    rig.settle();
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    // Whoever calls the command once more is not to mail the first two again unawares.
    QCOMPARE(rig.savedStates(), (QStringList{Sent, Sending, Waiting}));
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
}

void TestSendCommand::aSessionThatFailsBeforeAnyMessageLeavesTheProject_data()
{
    QTest::addColumn<bool>("save");
    QTest::newRow("as it is") << false;
    QTest::newRow("--save") << true;
}

void TestSendCommand::aSessionThatFailsBeforeAnyMessageLeavesTheProject()
{
    QFETCH(bool, save);
    SendRig rig;
    rig.author.w.recipients.setState(1, Sent);
    rig.saveProject();
    const QByteArray before = WorkspaceRig::contentOf(rig.path);
    SendOptions options;
    options.save = save;
    options.again = true;
    rig.start(options);
    rig.Timer.tick();
    rig.smtp.raiseError(4, QStringLiteral("connection refused"));
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QCOMPARE(WorkspaceRig::contentOf(rig.path), before);
}

void TestSendCommand::ctrlCBeforeTheFirstPacketSavesThePause()
{
    SendRig rig;
    rig.saveProject();
    rig.start();
    rig.command->interrupt();
    rig.settle();
    QCOMPARE(rig.exitCode, ExitCode::Interrupted);
    QVERIFY(rig.saved().paused);
    QCOMPARE(rig.saved().nextRecipientIndex, 1);
}

void TestSendCommand::ctrlCInsideAMessageWaitsForIt()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    rig.settle();
    QVERIFY(!rig.exitCode);
    rig.finishMessage();
    QCOMPARE(rig.exitCode, ExitCode::Interrupted);
    QVERIFY(rig.saved().paused);
    QCOMPARE(rig.savedStates(), (QStringList{Sent, Waiting, Waiting}));
    QCOMPARE(rig.saved().nextRecipientIndex, 2);
}

void TestSendCommand::ctrlCInTheLastMessageEndsTheRun()
{
    SendRig rig(1);
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    rig.finishMessage();
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QVERIFY(!rig.saved().paused);
    QCOMPARE(rig.savedStates(), QStringList{Sent});
}

void TestSendCommand::aSecondCtrlCEndsAtOnceWithTheMessageInDoubt()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    rig.command->interrupt();
    QCOMPARE(rig.exitCode, ExitCode::Interrupted);
    QVERIFY(rig.saved().paused);
    QCOMPARE(rig.savedStates(), (QStringList{Sending, Waiting, Waiting}));
    QCOMPARE(rig.saved().nextRecipientIndex, 2);
}

void TestSendCommand::aPausedProjectGoesOnAndIsWrittenBack()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    rig.finishMessage();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.addressesSent(),
             (QStringList{QStringLiteral("a1@example.net"), QStringLiteral("a2@example.net"),
                          QStringLiteral("a3@example.net")}));
    QVERIFY(!rig.saved().paused);
    QCOMPARE(rig.savedStates(), (QStringList{Sent, Sent, Sent}));
}

void TestSendCommand::aFailureAfterCtrlCKeepsThePause()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    rig.settle();
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QVERIFY(rig.saved().paused);
    QCOMPARE(rig.savedStates(), (QStringList{Sending, Waiting, Waiting}));
    QCOMPARE(rig.saved().nextRecipientIndex, 2);
}

void TestSendCommand::whoIsInDoubtAfterARunThatWentOnIsNamed()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    rig.command->interrupt();
    QVERIFY(rig.summary().startsWith(QStringLiteral("0 of 3 sent, 1 in doubt, 2 left; paused")));
    rig.smtp.raiseDone(false);
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::SomeRefused);
    QCOMPARE(rig.summary(), QStringLiteral("2 of 3 sent, 1 in doubt"));
    QCOMPARE(rig.messages.lines().constLast(),
             QStringLiteral("In doubt: 1  Name 1 <a1@example.net>"));
}

void TestSendCommand::aRowThatARunWentPastIsNotSaidToBeSent()
{
    SendRig rig;
    rig.author.w.engine.setNextRecipientIndex(2);
    rig.author.w.engine.EnterPausedState();
    rig.saveProject();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::SomeRefused);
    QCOMPARE(rig.summary(), QStringLiteral("2 of 3 sent, 1 left"));
}

void TestSendCommand::aFailedSessionSaysWhoIsLeft()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.finishMessage();
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    QCOMPARE(rig.summary(), QStringLiteral("1 of 3 sent, 1 in doubt, 1 left; the session failed"));
    QCOMPARE(rig.messages.lines().constLast(),
             QStringLiteral("In doubt: 2  Name 2 <a2@example.net>"));
}

void TestSendCommand::aPauseThatCannotBeSavedIsAFailure()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    QVERIFY(QFile::remove(rig.path));
    QVERIFY(QDir().mkdir(rig.path));
    rig.finishMessage();
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QCOMPARE(rig.summary(), QStringLiteral("1 of 3 sent, 2 left; paused"));
}

void TestSendCommand::theSummaryForProgramsHasThoseInDoubt()
{
    SendRig rig;
    rig.saveProject();
    SendOptions options;
    options.json = true;
    rig.startSending(options);
    rig.finishMessage();
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    QCOMPARE(rig.summary(),
             QStringLiteral(R"({"exit":3,"inDoubt":1,"left":1,"refused":0,"sent":1,"total":3})"));
}

void TestSendCommand::theNumbersOfARunThatWentOnAddUp()
{
    SendRig rig(5);
    rig.saveProject();
    rig.startSending();
    rig.finishMessage();
    rig.smtp.raiseDone(false);
    rig.smtp.raiseReady();
    rig.die(); // the third is in doubt
    SendOptions options = toGoOn();
    options.json = true;
    rig.startSending(options);
    rig.smtp.raiseDone(true);
    rig.command->interrupt();
    rig.settle();
    QCOMPARE(rig.exitCode, ExitCode::Interrupted);
    QCOMPARE(rig.summary(),
             QStringLiteral(R"({"exit":130,"inDoubt":1,"left":1,"refused":1,"sent":2,"total":5})"));
}

void TestSendCommand::theControlCopyIsNotAmongTheNumbers_data()
{
    QTest::addColumn<bool>("isPaused");
    QTest::addColumn<QString>("summary");
    QTest::newRow("at the end") << false << QStringLiteral("2 of 2 sent");
    QTest::newRow("in a pause") << true << QStringLiteral("1 of 2 sent, 1 left; paused, ");
}

void TestSendCommand::theControlCopyIsNotAmongTheNumbers()
{
    QFETCH(bool, isPaused);
    QFETCH(QString, summary);
    SendRig rig(2);
    rig.author.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.saveProject();
    if (isPaused) {
        rig.startSending();
        rig.command->interrupt();
        rig.finishMessage();
        QVERIFY(rig.summary().startsWith(summary));
    } else {
        rig.run();
        QCOMPARE(rig.smtp.sent.size(), 3);
        QCOMPARE(rig.summary(), summary);
    }
}

void TestSendCommand::againDoesNotGoWithAProjectThatWasSavedPaused_data()
{
    QTest::addColumn<bool>("wentOnAndDied");
    QTest::newRow("paused") << false;
    QTest::newRow("paused, went on and died") << true;
}

void TestSendCommand::againDoesNotGoWithAProjectThatWasSavedPaused()
{
    QFETCH(bool, wentOnAndDied);
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    rig.finishMessage();
    if (wentOnAndDied) {
        rig.startSending();
        rig.die();
    }
    const qsizetype sent = rig.smtp.sent.size();
    const QStringList records = rig.records();
    QCOMPARE(records.size(), wentOnAndDied ? 1 : 0);
    const QByteArray project = WorkspaceRig::contentOf(rig.path);
    rig.run(toEverybodyAgain());
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QVERIFY(rig.messages.text().contains(QStringLiteral("saved in a pause")));
    QCOMPARE(rig.smtp.sent.size(), sent);
    QCOMPARE(rig.records(), records);
    QCOMPARE(WorkspaceRig::contentOf(rig.path), project);
}

void TestSendCommand::continueNeedsARunThatStandsStill()
{
    SendRig rig;
    rig.saveProject();
    rig.run(toGoOn());
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QCOMPARE(rig.messages.lines(), QStringList{QStringLiteral("There is no run to continue.")});
    QVERIFY(rig.smtp.calls.isEmpty());
}

void TestSendCommand::continueGoesOnWithAPausedProject()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    rig.command->interrupt();
    rig.finishMessage();
    rig.run(toGoOn());
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.savedStates(), (QStringList{Sent, Sent, Sent}));
    QCOMPARE(rig.smtp.sent.size(), 3);
}

void TestSendCommand::theReportIsWrittenWhenTheRunIsOver()
{
    SendRig rig;
    rig.author.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.saveProject();
    rig.smtp.accepts = [](const FakeSmtp::SentMessage &message) { return !isFirst(message); };
    rig.run(rig.withReport());
    QCOMPARE(rig.exitCode, ExitCode::SomeRefused);
    QCOMPARE(rig.reported(QStringLiteral("Report of the project")), QStringLiteral("mailing.svk"));
    QCOMPARE(rig.reported(QStringLiteral("Recipients")), QStringLiteral("3"));
    QCOMPARE(rig.reported(QStringLiteral("Sent")), QStringLiteral("2"));
    QCOMPARE(rig.reported(QStringLiteral("Refused")), QStringLiteral("1"));
    QCOMPARE(rig.reported(QStringLiteral("Result")), QStringLiteral("Complete"));
    QVERIFY(rig.reported(QStringLiteral("1"))
                .startsWith(QStringLiteral(
                    "Name 1;a1@example.net;yes;Error!;refused;2026-11-21T09:00:00+01:00;1;")));
    QVERIFY(rig.reported(QStringLiteral("4")).isEmpty());
    // Without --save nothing else is written.
    QCOMPARE(rig.savedStates(), (QStringList{Waiting, Waiting, Waiting}));
}

void TestSendCommand::theReportIsWrittenWhenTheSessionFails()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending(rig.withReport());
    rig.finishMessage();
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QCOMPARE(rig.reported(QStringLiteral("Result")),
             QStringLiteral("Not complete: 1 in doubt, 1 left"));
    QVERIFY(rig.reported(QStringLiteral("2"))
                .startsWith(QStringLiteral("Name 2;a2@example.net;yes;Sending...;in doubt;")));
}

void TestSendCommand::theReportOfAPauseHasTheControlCopy()
{
    SendRig rig;
    rig.author.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.saveProject();
    rig.startSending(rig.withReport());
    rig.command->interrupt();
    rig.finishMessage();
    QCOMPARE(rig.exitCode, ExitCode::Interrupted);
    QCOMPARE(rig.reported(QStringLiteral("Recipients")), QStringLiteral("4"));
    QCOMPARE(rig.reported(QStringLiteral("Result")), QStringLiteral("Not complete: 3 left"));
    QVERIFY(rig.reported(QStringLiteral("4")).contains(QStringLiteral(";me@example.org;")));
}

void TestSendCommand::theReportIsWrittenWhenTheSecondCtrlCEndsAtOnce()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending(rig.withReport());
    rig.command->interrupt();
    rig.command->interrupt();
    QCOMPARE(rig.exitCode, ExitCode::Interrupted);
    QCOMPARE(rig.reported(QStringLiteral("Result")),
             QStringLiteral("Not complete: 1 in doubt, 2 left"));
}

void TestSendCommand::aReportThatCannotBeWrittenIsSaid()
{
    SendRig rig;
    rig.saveProject();
    SendOptions options;
    options.report = rig.author.folder.filePath(QStringLiteral("missing/report.csv"));
    rig.run(options);
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QVERIFY(rig.messages.lines().constLast().startsWith(*options.report + QStringLiteral(": ")));
    QCOMPARE(rig.summary(), QStringLiteral("3 of 3 sent"));
    // Nobody has what was asked for, and the project knows nothing: the next call says so.
    QCOMPARE(rig.records().size(), 1);
    rig.die();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QCOMPARE(rig.smtp.sent.size(), 3);
}

void TestSendCommand::aReportThatCannotBeWrittenDoesNotHideThePause()
{
    SendRig rig;
    rig.saveProject();
    SendOptions options;
    options.report = rig.author.folder.filePath(QStringLiteral("missing/report.csv"));
    rig.startSending(options);
    rig.command->interrupt();
    rig.finishMessage();
    QCOMPARE(rig.exitCode, ExitCode::Interrupted);
}

void TestSendCommand::aRunThatIsNotBegunHasNoReport()
{
    SendRig rig;
    rig.author.w.form.setText(Control::txtOggetto, {});
    rig.saveProject();
    rig.run(rig.withReport());
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QVERIFY(!QFile::exists(rig.report));
}

void TestSendCommand::aRunThatWasSummedUpLeavesNothingBehind()
{
    SendRig rig;
    rig.saveProject();
    rig.run();
    QCOMPARE(rig.records(), QStringList());
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.smtp.sent.size(), 6);
}

void TestSendCommand::aRunLeftBehindNeedsAWord()
{
    SendRig rig;
    rig.leaveRunBehind();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QVERIFY(rig.messages.lines().contains(
        QStringLiteral("A run of this project did not finish: 1 of 3 sent, 1 in doubt, 1 left.")));
    for (const char *option : {"--continue", "--rest", "--again"})
        QVERIFY2(rig.messages.text().contains(QLatin1String(option)), option);
    QCOMPARE(rig.smtp.sent.size(), 2);
    QCOMPARE(rig.records().size(), 1);
}

void TestSendCommand::continueGoesOnWhereALeftRunStood()
{
    SendRig rig;
    rig.leaveRunBehind();
    rig.run(toGoOn());
    QCOMPARE(rig.exitCode, ExitCode::SomeRefused);
    QCOMPARE(rig.addressesSent(),
             (QStringList{QStringLiteral("a1@example.net"), QStringLiteral("a2@example.net"),
                          QStringLiteral("a3@example.net")}));
    QCOMPARE(rig.summary(), QStringLiteral("2 of 3 sent, 1 in doubt"));
    QCOMPARE(rig.messages.lines().constLast(),
             QStringLiteral("In doubt: 2  Name 2 <a2@example.net>"));
    QVERIFY(!rig.saved().paused);
    QCOMPARE(rig.savedStates(), (QStringList{Sent, Sending, Sent}));
    QCOMPARE(rig.records(), QStringList());
}

void TestSendCommand::restAfterALeftRunReachesThoseWithout()
{
    SendRig rig;
    rig.leaveRunBehind();
    rig.run(forTheRest());
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.smtp.sent.size(), 3);
    QCOMPARE(rig.addressesSent().constLast(), QStringLiteral("a3@example.net"));
    // Who calls the command once more is not to mail the others again.
    QCOMPARE(rig.savedStates(), (QStringList{NotSent, NotSent, Sent}));
    QVERIFY(!rig.saved().recipients[0].checked && !rig.saved().recipients[1].checked);
    QCOMPARE(rig.records(), QStringList());
}

void TestSendCommand::restAfterALeftRunThatReachedAllIsWrittenBack()
{
    SendRig rig(2);
    rig.leaveRunBehind();
    rig.run(forTheRest());
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.smtp.sent.size(), 2);
    QCOMPARE(rig.savedStates(), (QStringList{Sent, Sending}));
    QCOMPARE(rig.records(), QStringList());
}

void TestSendCommand::againForgetsALeftRun()
{
    SendRig rig;
    rig.leaveRunBehind();
    rig.run(toEverybodyAgain());
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.smtp.sent.size(), 2 + 3);
    QCOMPARE(rig.records(), QStringList());
}

void TestSendCommand::continueWritesBackALeftRunThatReachedAll()
{
    SendRig rig(2);
    rig.leaveRunBehind();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QVERIFY(rig.messages.lines().contains(
        QStringLiteral("What became of a run of this project was not saved: 1 of 2 sent, 1 in "
                       "doubt.")));
    rig.run(toGoOn());
    QCOMPARE(rig.exitCode, ExitCode::SomeRefused);
    QCOMPARE(rig.summary(), QStringLiteral("1 of 2 sent, 1 in doubt"));
    QCOMPARE(rig.savedStates(), (QStringList{Sent, Sending}));
    QCOMPARE(rig.smtp.connections.size(), 1);
    QCOMPARE(rig.records(), QStringList());
}

void TestSendCommand::aStartThatIsRefusedKeepsTheLeftRun()
{
    SendRig rig;
    rig.leaveRunBehind();
    QVERIFY(QFile::remove(rig.author.folder.filePath(QStringLiteral("message.txt"))));
    for (const SendOptions &options : {forTheRest(), toGoOn()}) {
        rig.run(options);
        QCOMPARE(rig.exitCode, ExitCode::Refused);
        rig.die();
    }
    rig.author.useTextMessage("Dear *NOME*,\r\n");
    rig.run(toGoOn());
    QCOMPARE(rig.summary(), QStringLiteral("2 of 3 sent, 1 in doubt"));
}

void TestSendCommand::aRunThatCannotBeRecordedIsSavedPaused()
{
    SendRig rig;
    // A record that is longer than what is written when it can grow no more.
    rig.author.w.form.setText(Control::txtMittente, QString(2000, u'x'));
    rig.saveProject();
    rig.startSending(rig.withReport());
    {
        const FileSizeLimit full(static_cast<rlim_t>(rig.sizeOfRecord()));
        rig.finishMessage();
    }
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QCOMPARE(rig.summary(),
             QStringLiteral("1 of 3 sent, 2 left; paused, the project is saved: ") + rig.path);
    QVERIFY(rig.saved().paused);
    QCOMPARE(rig.savedStates(), (QStringList{Sent, Waiting, Waiting}));
    QCOMPARE(rig.smtp.sent.size(), 1);
    QCOMPARE(rig.reported(QStringLiteral("Result")), QStringLiteral("Not complete: 2 left"));
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Success);
    QCOMPARE(rig.smtp.sent.size(), 3);
}

void TestSendCommand::aRunThatCanNeitherBeRecordedNorSavedIsKept()
{
    SendRig rig;
    rig.saveProject();
    rig.startSending();
    QVERIFY(QFile::remove(rig.path));
    QVERIFY(QDir().mkdir(rig.path));
    {
        const FileSizeLimit full(static_cast<rlim_t>(rig.sizeOfRecord()));
        rig.finishMessage();
    }
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QCOMPARE(rig.summary(), QStringLiteral("1 of 3 sent, 2 left; paused"));
    rig.die();
    QVERIFY(QDir().rmdir(rig.path));
    rig.run(toGoOn());
    // The result for which there was no room is not known any more.
    QCOMPARE(rig.summary(), QStringLiteral("2 of 3 sent, 1 in doubt"));
}

void TestSendCommand::aRunWhoseResultCannotBeSavedIsKept()
{
    SendRig rig(2);
    rig.saveProject();
    rig.startSending(withSave());
    rig.finishMessage();
    QVERIFY(QFile::remove(rig.path));
    QVERIFY(QDir().mkdir(rig.path));
    rig.finishMessage();
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QCOMPARE(rig.summary(), QStringLiteral("2 of 2 sent"));
    QCOMPARE(rig.records().size(), 1);
}

void TestSendCommand::aLeftRunThatCannotBeWrittenBackIsKept_data()
{
    QTest::addColumn<bool>("goOn");
    QTest::newRow("--continue") << true;
    QTest::newRow("--rest") << false;
}

void TestSendCommand::aLeftRunThatCannotBeWrittenBackIsKept()
{
    QFETCH(bool, goOn);
    SendRig rig(2);
    rig.saveProject();
    rig.startSending();
    rig.finishMessage();
    rig.smtp.raiseDone(true); // it died before it could say that it was over
    rig.die();
    {
        const FileSizeLimit full(40);
        rig.run(goOn ? toGoOn() : forTheRest());
    }
    QCOMPARE(rig.exitCode, ExitCode::SessionError);
    QCOMPARE(rig.records().size(), 1);
    rig.die();
    rig.run();
    QCOMPARE(rig.exitCode, ExitCode::Refused);
    QCOMPARE(rig.smtp.sent.size(), 2);
}
