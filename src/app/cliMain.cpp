#include "app/Connections.h"
#include "base/CodePage.h"
#include "base/Host.h"
#include "base/Interrupts.h"
#include "base/ProgramFolder.h"
#include "base/RegionalFormats.h"
#include "cli/AccountCommand.h"
#include "cli/CertificateAdvice.h"
#include "cli/CheckCommand.h"
#include "cli/CliPrompts.h"
#include "cli/ComposeCommand.h"
#include "cli/SendCommand.h"
#include "cli/ServerCommand.h"
#include "cli/SettingsCommand.h"
#include "cli/TerminalLogin.h"
#include "cli/TestCommand.h"
#include "settings/RegFileStore.h"

#include <QCoreApplication>
#include <QTimer>

#include <memory>

namespace {

int exitStatus(ExitCode code)
{
    return static_cast<int>(code);
}

/// How the command wants to be connected; defaults for one that connects to nobody.
ConnectionOptions connectionOf(const Command &command)
{
    return std::visit(
        [](const auto &options) {
            if constexpr (requires { options.connection; })
                return options.connection;
            else
                return ConnectionOptions();
        },
        command);
}

/// The command when it is one that waits, else nothing.
std::unique_ptr<LongCommand> longCommand(const Command &command, const CliSurroundings &from)
{
    if (const auto *options = std::get_if<SendOptions>(&command))
        return std::make_unique<SendCommand>(*options, from);
    if (const auto *options = std::get_if<CheckOptions>(&command))
        return std::make_unique<CheckCommand>(*options, from);
    if (const auto *options = std::get_if<TestOptions>(&command))
        return std::make_unique<TestCommand>(*options, from);
    if (const auto *options = std::get_if<ServerOptions>(&command))
        return std::make_unique<ServerCommand>(*options, from);
    return nullptr;
}

ExitCode shortCommand(const Command &command, const CliSurroundings &from)
{
    if (const auto *options = std::get_if<ComposeOptions>(&command))
        return compose(*options, from);
    if (const auto *options = std::get_if<AccountOptions>(&command))
        return account(*options, from);
    return settings(std::get<SettingsOptions>(command), from);
}

int run(LongCommand &command)
{
    Interrupts interrupts;
    QObject::connect(&interrupts, &Interrupts::interrupted, &command, &LongCommand::interrupt);
    QObject::connect(&command, &LongCommand::finished, &command, [](ExitCode code) {
        // One more turn of the event loop, in which the client says goodbye to the server.
        QTimer::singleShot(0, QCoreApplication::instance(),
                           [code] { QCoreApplication::exit(exitStatus(code)); });
    });
    QTimer::singleShot(0, &command, &LongCommand::start);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Output output;
    const auto command = parseCommandLine(QCoreApplication::arguments());
    if (!command) {
        const NoCommand &reason = command.error();
        if (reason.exitCode == ExitCode::Success)
            output.result(reason.text.trimmed());
        else
            output.message(reason.text.trimmed());
        return exitStatus(reason.exitCode);
    }
    const SystemClock clock;
    const SystemFormats formats;
    const CodePage codePage = CodePage::ofSystem();
    const QString folder = programFolder();
    const ConnectionOptions connection = connectionOf(*command);
    RegFileStore settingsStore(RegFileStore::defaultFile());
    CliPrompts prompts(output, false);
    TerminalLogin terminal(output);
    Connections connections({clock, settingsStore, codePage, prompts,
                             terminal.canAsk() ? &terminal : nullptr, folder,
                             connection.passwordCommand.value_or(QString()), connection.traceFile});
    for (const Smtp *client : {&connections.SMTP, &connections.trialSMTP})
        adviseOnRefusedCertificates(*client, connections.accounts, output);
    const auto probe = connections.newProbe();
    SystemSecondTimer Timer;
    SystemSecondTimer Timer2;
    GroupedSync sync;
    const CliSurroundings from{settingsStore,
                               connections.SMTP,
                               connections.trialSMTP,
                               connections.trialSMTP,
                               *probe,
                               connections.accounts,
                               clock,
                               formats,
                               codePage,
                               Timer,
                               Timer2,
                               sync,
                               folder,
                               computerName(),
                               output};
    if (const auto waiting = longCommand(*command, from))
        return run(*waiting);
    return exitStatus(shortCommand(*command, from));
}
