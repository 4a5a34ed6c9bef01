#include "TestCheckCommand.h"

#include "CliRig.h"
#include "cli/CheckCommand.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

struct CheckRig : CliRig
{
    void start(bool offline = false)
    {
        CheckOptions options;
        options.project = path;
        options.offline = offline;
        command.emplace(options, surroundings());
        QObject::connect(&*command, &CheckCommand::finished, &smtp,
                         [this](ExitCode code) { exitCodes += code; });
        command->start();
        settle();
    }

    std::optional<CheckCommand> command;
    QList<ExitCode> exitCodes;
};

} // namespace

void TestCheckCommand::allIsWellOnceTheServerSaysSo()
{
    CheckRig rig;
    rig.saveProject();
    rig.start();
    QCOMPARE(rig.probe.begun, (QList{ServerAddress{u"mail.example.org"_s, 25}}));
    QVERIFY(rig.exitCodes.isEmpty());
    rig.probe.raiseFinished(rig.probe.goodReport());
    QCOMPARE(rig.exitCodes, QList{ExitCode::Success});
    QCOMPARE(rig.results.lines(),
             QStringList{u"Nothing to object: 3 of 3 recipients are checked."_s});
}

void TestCheckCommand::everyFindingIsALine()
{
    CheckRig rig;
    rig.author.w.form.setText(Control::txtOggetto, u"OUR GREAT NEWS"_s);
    rig.author.w.form.setText(Control::txtMittente, {});
    rig.author.w.form.setText(Control::txtNMsg, {});
    rig.saveProject();
    rig.start(true);
    QCOMPARE(rig.exitCodes, QList{ExitCode::Refused});
    QCOMPARE(rig.results.lines(),
             (QStringList{u"refused: The sender's name is missing."_s,
                          u"refused: Specify the number of messages per packet and the delay "
                          "between every packet"_s,
                          u"advice: The subject is in capital letters only; spam filters hold "
                          "that against a message."_s}));
}

void TestCheckCommand::adviceAloneIsNoFailure()
{
    CheckRig rig;
    rig.author.w.form.setText(Control::txtOggetto, u"OUR GREAT NEWS"_s);
    rig.saveProject();
    rig.start(true);
    QCOMPARE(rig.exitCodes, QList{ExitCode::Success});
    QCOMPARE(rig.results.lines().size(), 1);
}

void TestCheckCommand::aServerThatFailsIsAFailure()
{
    CheckRig rig;
    rig.saveProject();
    rig.start();
    ServerReport report = rig.probe.goodReport();
    report.failure = u"connection refused"_s;
    rig.probe.raiseFinished(report);
    QCOMPARE(rig.exitCodes, QList{ExitCode::Refused});
    QCOMPARE(rig.results.lines(), QStringList{u"fails: mail.example.org:25: connection refused"_s});
}

void TestCheckCommand::offlineAsksNoServer()
{
    CheckRig rig;
    rig.saveProject();
    rig.start(true);
    QCOMPARE(rig.exitCodes, QList{ExitCode::Success});
    QVERIFY(rig.probe.begun.isEmpty());
}

void TestCheckCommand::aFileThatIsNoProjectIsRefused()
{
    CheckRig rig;
    rig.author.file(u"mailing.svk"_s, "v1.0\r\n");
    rig.start();
    QCOMPARE(rig.exitCodes, QList{ExitCode::Refused});
    QVERIFY(rig.probe.begun.isEmpty());
    QVERIFY(rig.results.lines().isEmpty());
    QVERIFY(!rig.messages.lines().isEmpty());
}

void TestCheckCommand::ctrlCGivesTheServerUp()
{
    CheckRig rig;
    rig.saveProject();
    rig.start();
    rig.command->interrupt();
    QCOMPARE(rig.exitCodes, QList{ExitCode::Interrupted});
    QVERIFY(!rig.probe.isRunning());
    QVERIFY(rig.results.lines().isEmpty());
}

void TestCheckCommand::aPausedProjectIsHeldToWhatResumeRefuses()
{
    CheckRig rig;
    rig.author.start();
    rig.author.w.engine.cmdPausa_Click();
    rig.author.w.form.setText(Control::txtMittente, {});
    rig.saveProject();
    rig.start(true);
    QCOMPARE(rig.exitCodes, QList{ExitCode::Success});
}
