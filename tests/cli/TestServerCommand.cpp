#include "TestServerCommand.h"

#include "CliRig.h"
#include "cli/ServerCommand.h"

using namespace Qt::StringLiterals;

namespace {

struct ServerRig : CliRig
{
    ServerRig()
    {
        ServerOptions options;
        options.server = {u"mail.example.org"_s, 587};
        command.emplace(options, surroundings());
        QObject::connect(&*command, &ServerCommand::finished, &smtp,
                         [this](ExitCode code) { exitCodes += code; });
        command->start();
    }

    std::optional<ServerCommand> command;
    QList<ExitCode> exitCodes;
};

} // namespace

void TestServerCommand::aServerThatIsWellIsSaidStepByStep()
{
    ServerRig rig;
    QCOMPARE(rig.probe.begun, (QList{ServerAddress{u"mail.example.org"_s, 587}}));
    QVERIFY(rig.exitCodes.isEmpty());
    rig.probe.raiseFinished(rig.probe.goodReport());
    QCOMPARE(rig.exitCodes, QList{ExitCode::Success});
    QCOMPARE(rig.results.lines().mid(0, 3),
             (QStringList{u"ok    Server: mail.example.org: 192.0.2.1"_s,
                          u"ok    Connection: 192.0.2.1, port 587"_s,
                          u"note  Encryption: none: others can read what is sent"_s}));
    QCOMPARE(rig.results.lines().last(), u"ok    Result: All is well. Nothing was sent."_s);
}

void TestServerCommand::aServerThatEndsEarlyIsAnError()
{
    ServerRig rig;
    ServerReport report;
    report.failure = u"there is no server of that name"_s;
    rig.probe.raiseFinished(report);
    QCOMPARE(rig.exitCodes, QList{ExitCode::SessionError});
    QCOMPARE(rig.results.lines(), QStringList{u"bad   Result: there is no server of that name"_s});
}

void TestServerCommand::theServersWordsCannotDriveTheTerminal()
{
    ServerRig rig;
    ServerReport report;
    report.failure = u"no\r\nok    Result: \x1b[1myes"_s;
    rig.probe.raiseFinished(report);
    QCOMPARE(rig.results.lines(),
             QStringList{uR"(bad   Result: no\x0d\x0aok    Result: \x1b[1myes)"_s});
}

void TestServerCommand::ctrlCGivesItUp()
{
    ServerRig rig;
    rig.command->interrupt();
    QVERIFY(!rig.probe.isRunning());
    QCOMPARE(rig.exitCodes, QList{ExitCode::Interrupted});
}

void TestServerCommand::ctrlCBehindTheEndChangesNothing()
{
    ServerRig rig;
    rig.probe.raiseFinished(rig.probe.goodReport());
    rig.command->interrupt();
    QCOMPARE(rig.exitCodes, QList{ExitCode::Success});
}
