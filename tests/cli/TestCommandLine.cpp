#include "TestCommandLine.h"

#include "cli/CommandLine.h"

#include <QDir>
#include <QTest>

namespace {

auto parsed(const QStringList &arguments)
{
    return parseCommandLine(QStringList{QStringLiteral("sorvanta-cli")} + arguments);
}

} // namespace

void TestCommandLine::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("nothing") << QStringList();
    const auto row = [](const char *arguments) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(u' ');
    };
    row("deliver p.svk");
    row("send");
    row("send a.svk b.svk");
    row("send p.svk --fast");
    row("send p.svk --rest --again");
    row("check");
    row("check a.svk b.svk");
    row("compose p.svk");
    row("compose p.svk --row");
    row("compose p.svk --row two");
    row("settings Server a b");
}

void TestCommandLine::wrongUsage()
{
    QFETCH(QStringList, arguments);
    const auto command = parsed(arguments);
    QVERIFY(!command.has_value());
    QCOMPARE(command.error().exitCode, ExitCode::Refused);
    QVERIFY(command.error().text.contains(QStringLiteral("sorvanta-cli")));
}

void TestCommandLine::helpAndVersionAreNoFailure_data()
{
    QTest::addColumn<QString>("argument");
    QTest::newRow("--help") << QStringLiteral("--help");
    QTest::newRow("-h") << QStringLiteral("-h");
    QTest::newRow("--version") << QStringLiteral("--version");
}

void TestCommandLine::helpAndVersionAreNoFailure()
{
    QFETCH(QString, argument);
    const auto command = parsed({argument});
    QVERIFY(!command.has_value());
    QCOMPARE(command.error().exitCode, ExitCode::Success);
}

void TestCommandLine::sendTakesItsOptions()
{
    const auto command =
        parsed({QStringLiteral("send"), QStringLiteral("--yes"), QStringLiteral("/p.svk"),
                QStringLiteral("--json"), QStringLiteral("--rest"), QStringLiteral("--save")});
    QVERIFY(command.has_value());
    const auto *options = std::get_if<SendOptions>(&*command);
    QVERIFY(options != nullptr);
    QCOMPARE(options->project, QStringLiteral("/p.svk"));
    QVERIFY(options->yes && options->json && options->rest && options->save);
    QVERIFY(!options->again);
}

void TestCommandLine::pathsComeOutAbsolute()
{
    const auto command = parsed({QStringLiteral("check"), QStringLiteral("my mailing.svk")});
    QVERIFY(command.has_value());
    QCOMPARE(std::get<CheckOptions>(*command).project,
             QDir::current().filePath(QStringLiteral("my mailing.svk")));
}

void TestCommandLine::composeNeedsARow()
{
    const auto command = parsed({QStringLiteral("compose"), QStringLiteral("/p.svk"),
                                 QStringLiteral("--row"), QStringLiteral("12")});
    QVERIFY(command.has_value());
    QCOMPARE(std::get<ComposeOptions>(*command).row, 12);
}

void TestCommandLine::aSettingsValueMayBeginWithADash()
{
    const auto command =
        parsed({QStringLiteral("settings"), QStringLiteral("nMsg"), QStringLiteral("-3")});
    QVERIFY(command.has_value());
    QCOMPARE(std::get<SettingsOptions>(*command).value.value_or(QString()), QStringLiteral("-3"));
}
