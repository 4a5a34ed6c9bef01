#include "TestComposeCommand.h"

#include "CliRig.h"
#include "cli/ComposeCommand.h"

using namespace Qt::StringLiterals;

void TestComposeCommand::aRowsMessageIsPrinted()
{
    CliRig rig;
    rig.saveProject();
    QCOMPARE(compose({rig.path, 2}, rig.surroundings()), ExitCode::Success);
    QCOMPARE(rig.results.text(), u"To: a2@example.net\r\nSubject: News\r\n\r\nDear Name 2,\r\n"_s);
}

void TestComposeCommand::aRowThatIsNotThereIsRefused()
{
    CliRig rig;
    rig.saveProject();
    QCOMPARE(compose({rig.path, 4}, rig.surroundings()), ExitCode::Refused);
    QCOMPARE(rig.messages.lines(),
             QStringList{u"There is no row 4: the project has 3 recipients."_s});
}

void TestComposeCommand::whyThereIsNoMessageIsSaid()
{
    CliRig rig;
    rig.saveProject();
    rig.composer.failure = u"an attachment cannot be read"_s;
    QCOMPARE(compose({rig.path, 1}, rig.surroundings()), ExitCode::Refused);
    QCOMPARE(rig.messages.lines(), QStringList{u"an attachment cannot be read"_s});
    QVERIFY(rig.results.text().isEmpty());
}
