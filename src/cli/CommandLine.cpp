#include "cli/CommandLine.h"

#include "base/Numbers.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

using Parsed = tl::expected<Command, NoCommand>;

const char Usage[] = R"(Usage: sorvanta-cli COMMAND ...

  send PROJECT [--continue | --rest | --again] [--yes] [--save] [--report FILE]
               [--json]
      Sends the project's message to its checked recipients; a project that was
      saved paused goes on where it stood. Ctrl-C pauses after the message in
      flight and saves the project; a second Ctrl-C ends at once.
        --continue     go on where a run stood that was paused or that ended
                       with its program; who is in doubt is left out
        --rest         leave out the recipients marked "Sent" or "Sending..."
        --again        send to them again
        --yes          go on although linked pictures will not travel
        --save         write rows and states back into the project after the
                       run, unless it failed before it had reached anybody
        --report FILE  write what became of every recipient, as a table for
                       spreadsheets, or as JSON when FILE ends in ".json"
        --json         one JSON object a line instead of text
      A project that was already sent in part is refused until --rest or --again
      says which is meant. When a run of the project ended with its program, one
      of the first three must be said. A project is always written back after
      that, when it went on from a pause, when the session failed after a
      message had been handed over, when the run could not be recorded any more,
      and after Ctrl-C.
      Exit status: 0 all sent, 1 some refused or in doubt, 2 nothing begun,
      3 session error, or something could not be written, 130 paused by Ctrl-C.

  check PROJECT [--offline]
      Says what a start would refuse or ask, why the run would fail, and what
      somebody may be sorry for afterwards; sends nothing. The server is asked
      too, unless --offline says no.
      Exit status: 0 nothing, or advice alone; 2 anything else.

  test PROJECT [--to ADDRESS] [--row N]
      Sends the message as row N (the first, if not said) would get it to the
      sender's own address, or to ADDRESS, outside any run.
      Exit status: 0 accepted, 1 refused, 2 nothing begun, 3 session error,
      130 given up by Ctrl-C.

  compose PROJECT --row N
      Prints the message that row N would get alone.

  server HOST[:PORT]
      Tries the server out, step by step; sends nothing.
      Exit status: 0 all is well, 3 it ended early, 130 given up by Ctrl-C.

  account HOST [NAME [VALUE]]
      Lists what is kept about the server, reads one value, or sets it:
        User          who logs in; empty: asked for when the server wants it
        TokenCommand  the command that prints an access token
        Pipelining, Chunking, Trace
                      0 or 1
        TrustedCertificates
                      SHA-256 fingerprints, separated by blanks
        StartTls      the ports on which the server offered STARTTLS

  settings [NAME [VALUE]]
      Lists the settings, reads one, or sets one.

  --help, --version

send, check, test and server take besides:
  --password-command CMD
      Takes the password from the first line that the command prints. Without
      it the password comes from the keyring, from ~/.netrc, or is asked for on
      the terminal.
  --trace FILE
      Takes the dialogue with the server down, without passwords.

Exit status 2 is also wrong usage.
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

void addValueOptions(QCommandLineParser &parser, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        parser.addOption(
            QCommandLineOption(QString::fromLatin1(name), {}, QStringLiteral("value")));
    }
}

void addConnectionOptions(QCommandLineParser &parser)
{
    addValueOptions(parser, {"password-command", "trace"});
}

// An option that takes a value; nothing when it is not there.
std::optional<QString> valueOf(const QCommandLineParser &parser, const char *name)
{
    const QString option = QString::fromLatin1(name);
    return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
}

// The same for an option that takes a file.
std::optional<QString> fileOf(const QCommandLineParser &parser, const char *name)
{
    const auto path = valueOf(parser, name);
    return path ? std::optional(absolute(*path)) : std::nullopt;
}

ConnectionOptions connectionOf(const QCommandLineParser &parser)
{
    ConnectionOptions connection;
    connection.passwordCommand = valueOf(parser, "password-command");
    connection.traceFile = fileOf(parser, "trace");
    return connection;
}

Parsed parseSend(const QStringList &arguments)
{
    QCommandLineParser parser;
    for (const char *name : {"yes", "save", "rest", "again", "continue", "json"})
        parser.addOption(QCommandLineOption(QString::fromLatin1(name)));
    addValueOptions(parser, {"report"});
    addConnectionOptions(parser);
    if (const auto parsed = parse(parser, arguments, 1, 1); !parsed)
        return tl::unexpected(parsed.error());
    const auto has = [&parser](const char *name) {
        return parser.isSet(QString::fromLatin1(name));
    };
    if (int{has("continue")} + int{has("rest")} + int{has("again")} > 1)
        return wrongUsage(
            QStringLiteral("send: --continue, --rest and --again exclude each other"));
    return SendOptions{absolute(parser.positionalArguments().front()),
                       has("yes"),
                       has("save"),
                       has("rest"),
                       has("again"),
                       has("continue"),
                       has("json"),
                       fileOf(parser, "report"),
                       connectionOf(parser)};
}

Parsed parseCheck(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption offline(QStringLiteral("offline"));
    parser.addOption(offline);
    addConnectionOptions(parser);
    if (const auto parsed = parse(parser, arguments, 1, 1); !parsed)
        return tl::unexpected(parsed.error());
    return CheckOptions{absolute(parser.positionalArguments().front()), parser.isSet(offline),
                        connectionOf(parser)};
}

Parsed parseTest(const QStringList &arguments)
{
    QCommandLineParser parser;
    addValueOptions(parser, {"to", "row"});
    addConnectionOptions(parser);
    if (const auto parsed = parse(parser, arguments, 1, 1); !parsed)
        return tl::unexpected(parsed.error());
    TestOptions options{absolute(parser.positionalArguments().front()),
                        valueOf(parser, "to"),
                        {},
                        connectionOf(parser)};
    if (const auto row = valueOf(parser, "row")) {
        options.row = toNumber<int>(*row);
        if (!options.row)
            return wrongUsage(QStringLiteral("test: --row needs the number of a row"));
    }
    return options;
}

Parsed parseServer(const QStringList &arguments)
{
    QCommandLineParser parser;
    addConnectionOptions(parser);
    if (const auto parsed = parse(parser, arguments, 1, 1); !parsed)
        return tl::unexpected(parsed.error());
    const auto server = ServerAddress::parse(parser.positionalArguments().front());
    if (!server) {
        return wrongUsage(QStringLiteral("server: '%1' is not a port number from 1 to 65535")
                              .arg(server.error()));
    }
    if (server->host.isEmpty())
        return wrongUsage(QStringLiteral("server: the host is missing"));
    return ServerOptions{*server, connectionOf(parser)};
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

// NAME [VALUE] at that place. A value may begin with a "-", so nothing here is an option.
template <typename Options>
Parsed parseNameAndValue(const QStringList &arguments, qsizetype place, Options options)
{
    if (arguments.size() > place)
        options.name = arguments.at(place);
    if (arguments.size() > place + 1)
        options.value = arguments.at(place + 1);
    if (arguments.size() > place + 2)
        return wrongUsage(QStringLiteral("%1: too many arguments").arg(arguments.front()));
    return options;
}

Parsed parseSettings(const QStringList &arguments)
{
    return parseNameAndValue(arguments, 1, SettingsOptions());
}

Parsed parseAccount(const QStringList &arguments)
{
    const QString host = arguments.value(1).trimmed();
    if (host.isEmpty() || host.startsWith(u'-'))
        return wrongUsage(QStringLiteral("account: the host is missing"));
    // What is kept holds for all ports of a host.
    return parseNameAndValue(arguments, 2, AccountOptions{host.section(u':', 0, 0), {}, {}});
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
    if (name == QLatin1String("test"))
        return parseTest(rest);
    if (name == QLatin1String("server"))
        return parseServer(rest);
    if (name == QLatin1String("account"))
        return parseAccount(rest);
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
