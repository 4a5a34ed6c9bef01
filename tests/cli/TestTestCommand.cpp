#include "TestTestCommand.h"

#include "CliRig.h"
#include "cli/TestCommand.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

struct TestRig : CliRig
{
    using CliRig::CliRig;

    void start(TestOptions options = {})
    {
        options.project = path;
        command.emplace(options, surroundings());
        QObject::connect(&*command, &TestCommand::finished, &smtp,
                         [this](ExitCode code) { exitCodes += code; });
        command->start();
        settle();
    }
    /// Up to the message in flight.
    void handOver(TestOptions options = {})
    {
        start(std::move(options));
        trialClient.raiseReady();
    }
    [[nodiscard]] OutgoingMessage sent() const { return trialClient.sent.value(0).message; }

    std::optional<TestCommand> command;
    QList<ExitCode> exitCodes;
};

} // namespace

void TestTestCommand::theFirstRowsMessageGoesToTheSender()
{
    TestRig rig;
    rig.saveProject();
    rig.handOver();
    QCOMPARE(rig.sent().RecipientAddress, u"club@example.org"_s);
    QCOMPARE(rig.sent().TextBody, u"Dear Name 1,\r\n"_s);
    rig.trialClient.raiseDone(true, {{SmtpVerb::Content, 250, u"2.0.0"_s, u"queued"_s}});
    QCOMPARE(rig.exitCodes, QList{ExitCode::Success});
    QCOMPARE(rig.results.lines(),
             QStringList{u"The server accepted the message: 250 2.0.0 queued"_s});
    QVERIFY(rig.smtp.calls.isEmpty());
}

void TestTestCommand::addressAndRowCanBeChosen()
{
    TestRig rig;
    rig.saveProject();
    TestOptions options;
    options.to = u"me@example.org"_s;
    options.row = 3;
    rig.handOver(options);
    QCOMPARE(rig.sent().RecipientAddress, u"me@example.org"_s);
    QCOMPARE(rig.sent().TextBody, u"Dear Name 3,\r\n"_s);
}

void TestTestCommand::aProjectWithoutRowsSendsAMessageWithoutAName()
{
    TestRig rig(0);
    rig.saveProject();
    rig.handOver();
    QCOMPARE(rig.sent().TextBody, u"Dear ,\r\n"_s);
}

void TestTestCommand::aRefusalIsAResult()
{
    TestRig rig;
    rig.saveProject();
    rig.handOver();
    rig.trialClient.raiseDone(false, {{SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"nobody here"_s}});
    QCOMPARE(rig.exitCodes, QList{ExitCode::SomeRefused});
    QCOMPARE(rig.results.lines(), QStringList{u"The message was refused: 550 5.1.1 nobody here"_s});
}

void TestTestCommand::aSessionThatFailsIsAnError()
{
    TestRig rig;
    rig.saveProject();
    rig.start();
    rig.trialClient.raiseError(4, u"connection refused"_s);
    QCOMPARE(rig.exitCodes, QList{ExitCode::SessionError});
    QCOMPARE(rig.messages.lines(), QStringList{u"The message was not sent: connection refused"_s});
    QVERIFY(rig.results.lines().isEmpty());
}

void TestTestCommand::aRowThatIsNotThereIsNotBegun()
{
    for (const int row : {0, 4, -1}) {
        TestRig rig;
        rig.saveProject();
        TestOptions options;
        options.row = row;
        rig.start(options);
        QCOMPARE(rig.exitCodes, QList{ExitCode::Refused});
        QVERIFY(rig.trialClient.calls.isEmpty());
        QCOMPARE(rig.messages.lines(),
                 QStringList{u"There is no row %1: the project has 3 recipients."_s.arg(row)});
    }
}

void TestTestCommand::aMessageFileThatIsMissingIsNotBegun()
{
    TestRig rig;
    rig.saveProject();
    QVERIFY(QFile::remove(rig.author.w.form.tag(Control::txtEmail)));
    rig.start();
    QCOMPARE(rig.exitCodes, QList{ExitCode::Refused});
    QVERIFY(rig.trialClient.connections.isEmpty());
    QVERIFY(rig.messages.text().contains(u"the file does not exist"_s));
}

void TestTestCommand::withoutAnAddressNothingIsBegun()
{
    TestRig rig;
    rig.author.w.form.setText(Control::txtEmailMittente, {});
    rig.saveProject();
    rig.start();
    QCOMPARE(rig.exitCodes, QList{ExitCode::Refused});
    QCOMPARE(rig.messages.lines(),
             QStringList{u"The message was not sent: there is no address to send it to"_s});
}

void TestTestCommand::theProjectStaysAsItIs()
{
    TestRig rig;
    rig.saveProject();
    const QByteArray before = WorkspaceRig::contentOf(rig.path);
    rig.handOver();
    rig.trialClient.raiseDone(true);
    QCOMPARE(WorkspaceRig::contentOf(rig.path), before);
}

void TestTestCommand::ctrlCGivesItUp()
{
    TestRig rig;
    rig.saveProject();
    rig.start();
    rig.command->interrupt();
    rig.trialClient.raiseReady();
    QCOMPARE(rig.exitCodes, QList{ExitCode::Interrupted});
    QVERIFY(rig.trialClient.sent.isEmpty());
}
