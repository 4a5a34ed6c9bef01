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
    row("send p.svk --continue --rest");
    row("send p.svk --continue --again");
    row("send p.svk --report");
    row("check");
    row("check a.svk b.svk");
    row("compose p.svk");
    row("compose p.svk --row");
    row("compose p.svk --row two");
    row("settings Server a b");
    row("check p.svk --row 1");
    row("check p.svk --trace");
    row("compose p.svk --row 1 --trace t");
    row("test");
    row("test a.svk b.svk");
    row("test p.svk --row two");
    row("test p.svk --to");
    row("server");
    row("server mail:smtp");
    row("server mail:0");
    row("server :25");
    row("server mail 25");
    row("account");
    row("account mail User a b");
    row("account --trace t");
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
    QVERIFY(!options->again && !options->goOn && !options->report);
}

void TestCommandLine::sendTakesAReport()
{
    const auto command =
        parsed({QStringLiteral("send"), QStringLiteral("/p.svk"), QStringLiteral("--continue"),
                QStringLiteral("--report"), QStringLiteral("my report.csv")});
    QVERIFY(command.has_value());
    const auto &options = std::get<SendOptions>(*command);
    QVERIFY(options.goOn);
    QCOMPARE(options.report.value_or(QString()),
             QDir::current().filePath(QStringLiteral("my report.csv")));
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

void TestCommandLine::whoeverConnectsTakesTheSameOptions_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("send") << QStringLiteral("send");
    QTest::newRow("check") << QStringLiteral("check");
    QTest::newRow("test") << QStringLiteral("test");
    QTest::newRow("server") << QStringLiteral("server");
}

void TestCommandLine::whoeverConnectsTakesTheSameOptions()
{
    QFETCH(QString, command);
    const auto connectionOf = [](const QStringList &arguments) {
        const auto whole = parsed(arguments);
        if (!whole)
            return std::optional<ConnectionOptions>();
        return std::visit(
            [](const auto &options) -> std::optional<ConnectionOptions> {
                if constexpr (requires { options.connection; })
                    return options.connection;
                else
                    return std::nullopt;
            },
            *whole);
    };
    const auto none = connectionOf({command, QStringLiteral("/p")});
    QVERIFY(none.has_value());
    QVERIFY(!none->passwordCommand && !none->traceFile);
    const auto both =
        connectionOf({command, QStringLiteral("/p"), QStringLiteral("--password-command"),
                      QStringLiteral("pass show mail"), QStringLiteral("--trace=t.log")});
    QVERIFY(both.has_value());
    QCOMPARE(both->passwordCommand.value_or(QString()), QStringLiteral("pass show mail"));
    QCOMPARE(both->traceFile.value_or(QString()),
             QDir::current().filePath(QStringLiteral("t.log")));
}

void TestCommandLine::checkCanStayOffline()
{
    const auto command = parsed({QStringLiteral("check"), QStringLiteral("/p.svk")});
    QVERIFY(command.has_value());
    QVERIFY(!std::get<CheckOptions>(*command).offline);
    const auto offline =
        parsed({QStringLiteral("check"), QStringLiteral("/p.svk"), QStringLiteral("--offline")});
    QVERIFY(offline.has_value());
    QVERIFY(std::get<CheckOptions>(*offline).offline);
}

void TestCommandLine::testTakesAddressAndRow()
{
    const auto plain = parsed({QStringLiteral("test"), QStringLiteral("/p.svk")});
    QVERIFY(plain.has_value());
    QVERIFY(!std::get<TestOptions>(*plain).to && !std::get<TestOptions>(*plain).row);
    const auto command =
        parsed({QStringLiteral("test"), QStringLiteral("/p.svk"), QStringLiteral("--to"),
                QStringLiteral("me@example.org"), QStringLiteral("--row"), QStringLiteral("3")});
    QVERIFY(command.has_value());
    const auto &options = std::get<TestOptions>(*command);
    QCOMPARE(options.project, QStringLiteral("/p.svk"));
    QCOMPARE(options.to.value_or(QString()), QStringLiteral("me@example.org"));
    QCOMPARE(options.row.value_or(0), 3);
}

void TestCommandLine::aServerHasItsPort()
{
    const auto command = parsed({QStringLiteral("server"), QStringLiteral("mail:587")});
    QVERIFY(command.has_value());
    QCOMPARE(std::get<ServerOptions>(*command).server,
             (ServerAddress{QStringLiteral("mail"), 587}));
}

void TestCommandLine::anAccountTakesNameAndValue()
{
    const auto list = parsed({QStringLiteral("account"), QStringLiteral("mail:587")});
    QVERIFY(list.has_value());
    QCOMPARE(std::get<AccountOptions>(*list).host, QStringLiteral("mail"));
    QVERIFY(!std::get<AccountOptions>(*list).name);
    const auto set = parsed({QStringLiteral("account"), QStringLiteral("mail"),
                             QStringLiteral("TokenCommand"), QStringLiteral("--print")});
    QVERIFY(set.has_value());
    QCOMPARE(std::get<AccountOptions>(*set).name.value_or(QString()),
             QStringLiteral("TokenCommand"));
    QCOMPARE(std::get<AccountOptions>(*set).value.value_or(QString()), QStringLiteral("--print"));
    const auto cleared = parsed(
        {QStringLiteral("account"), QStringLiteral("mail"), QStringLiteral("User"), QString()});
    QVERIFY(cleared.has_value());
    QVERIFY(std::get<AccountOptions>(*cleared).value.has_value());
}
