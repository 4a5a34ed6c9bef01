#include "cli/CommandLine.h"

#include "base/Numbers.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

using Parsed = tl::expected<Command, NoCommand>;

const char Usage[] = R"(Usage: sorvanta-cli COMMAND ...

  send PROJECT [--yes] [--save] [--rest] [--again] [--json]
      Sends the project's message to its checked recipients; a project that was
      saved paused goes on where it stood. Ctrl-C pauses after the message in
      flight and saves the project; a second Ctrl-C ends at once.
        --yes    go on although linked pictures will not travel
        --save   write rows and states back into the project after the run
        --rest   leave out the recipients marked "Sent" or "Sending..."
        --again  send to them again
        --json   one JSON object a line instead of text
      A project is always written back when it went on from a pause, when the
      session failed after a message had been handed over, and after Ctrl-C.
      Exit status: 0 all sent, 1 some refused, 2 nothing begun, 3 session error,
      130 paused by Ctrl-C.

  check PROJECT
      Says what a start would refuse or ask, and sends nothing.
      Exit status: 0 nothing, 2 something.

  compose PROJECT --row N
      Prints the message that row N would get alone.

  settings [NAME [VALUE]]
      Lists the settings, reads one, or sets one.

  --help, --version
)";

tl::unexpected<NoCommand> wrongUsage(const QString &reason)
{
    return tl::unexpected(
        NoCommand{reason + QLatin1String("\nTry: sorvanta-cli --help\n"), ExitCode::Refused});
}

QString absolute(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

// What all commands have in common: known options only, and so many arguments.
tl::expected<void, NoCommand> parse(QCommandLineParser &parser, const QStringList &arguments,
                                    int fewest, int most)
{
    if (!parser.parse(arguments))
        return wrongUsage(parser.errorText());
    const auto count = parser.positionalArguments().size();
    if (count < fewest)
        return wrongUsage(QStringLiteral("%1: an argument is missing").arg(arguments.front()));
    if (count > most)
        return wrongUsage(QStringLiteral("%1: too many arguments").arg(arguments.front()));
    return {};
}

Parsed parseSend(const QStringList &arguments)
{
    QCommandLineParser parser;
    for (const char *name : {"yes", "save", "rest", "again", "json"})
        parser.addOption(QCommandLineOption(QString::fromLatin1(name)));
    if (const auto parsed = parse(parser, arguments, 1, 1); !parsed)
        return tl::unexpected(parsed.error());
    const auto has = [&parser](const char *name) {
        return parser.isSet(QString::fromLatin1(name));
    };
    if (has("rest") && has("again"))
        return wrongUsage(QStringLiteral("send: --rest and --again exclude each other"));
    return SendOptions{absolute(parser.positionalArguments().front()),
                       has("yes"),
                       has("save"),
                       has("rest"),
                       has("again"),
                       has("json")};
}

Parsed parseCheck(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (const auto parsed = parse(parser, arguments, 1, 1); !parsed)
        return tl::unexpected(parsed.error());
    return CheckOptions{absolute(parser.positionalArguments().front())};
}

Parsed parseCompose(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption row(QStringLiteral("row"), {}, QStringLiteral("N"));
    parser.addOption(row);
    if (const auto parsed = parse(parser, arguments, 1, 1); !parsed)
        return tl::unexpected(parsed.error());
    const auto number = toNumber<int>(parser.value(row));
    if (!number)
        return wrongUsage(QStringLiteral("compose: --row needs the number of a row"));
    return ComposeOptions{absolute(parser.positionalArguments().front()), *number};
}

Parsed parseSettings(const QStringList &arguments)
{
    // A value may begin with a "-", so nothing here is an option.
    SettingsOptions options;
    if (arguments.size() > 1)
        options.name = arguments.at(1);
    if (arguments.size() > 2)
        options.value = arguments.at(2);
    if (arguments.size() > 3)
        return wrongUsage(QStringLiteral("settings: too many arguments"));
    return options;
}

} // namespace

Parsed parseCommandLine(const QStringList &arguments)
{
    const QStringList rest = arguments.mid(1);
    if (rest.isEmpty())
        return tl::unexpected(NoCommand{QString::fromLatin1(Usage), ExitCode::Refused});
    const QString &name = rest.front();
    if (name == QLatin1String("send"))
        return parseSend(rest);
    if (name == QLatin1String("check"))
        return parseCheck(rest);
    if (name == QLatin1String("compose"))
        return parseCompose(rest);
    if (name == QLatin1String("settings"))
        return parseSettings(rest);
    if (name == QLatin1String("--help") || name == QLatin1String("-h"))
        return tl::unexpected(NoCommand{QString::fromLatin1(Usage), ExitCode::Success});
    if (name == QLatin1String("--version")) {
        return tl::unexpected(
            NoCommand{QStringLiteral("sorvanta-cli " SORVANTA_VERSION "\n"), ExitCode::Success});
    }
    return wrongUsage(QStringLiteral("unknown command: %1").arg(name));
}
