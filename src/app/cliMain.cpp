#include "base/CodePage.h"
#include "base/Host.h"
#include "base/Interrupts.h"
#include "base/ProgramFolder.h"
#include "base/RegionalFormats.h"
#include "cli/ProjectInquiries.h"
#include "cli/SendCommand.h"
#include "cli/SettingsCommand.h"
#include "settings/RegFileStore.h"
#include "smtp/client/HostName.h"
#include "smtp/client/SmtpClient.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

int exitStatus(ExitCode code)
{
    return static_cast<int>(code);
}

int send(const SendOptions &options, const CliSurroundings &from)
{
    SendCommand command(options, from);
    Interrupts interrupts;
    QObject::connect(&interrupts, &Interrupts::interrupted, &command, &SendCommand::interrupt);
    QObject::connect(&command, &SendCommand::finished, &command, [](ExitCode code) {
        // One more turn of the event loop, in which the client says goodbye to the server.
        QTimer::singleShot(0, QCoreApplication::instance(),
                           [code] { QCoreApplication::exit(exitStatus(code)); });
    });
    QTimer::singleShot(0, &command, &SendCommand::start);
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
    RegFileStore settingsStore(RegFileStore::defaultFile());
    SmtpClient client(clock, {}, ownHostName());
    SystemSecondTimer Timer;
    SystemSecondTimer Timer2;
    const CliSurroundings from{settingsStore,   client,         client, clock,
                               formats,         codePage,       Timer,  Timer2,
                               programFolder(), computerName(), output};
    if (const auto *options = std::get_if<SendOptions>(&*command))
        return send(*options, from);
    if (const auto *options = std::get_if<CheckOptions>(&*command))
        return exitStatus(check(*options, from));
    if (const auto *options = std::get_if<ComposeOptions>(&*command))
        return exitStatus(compose(*options, from));
    return exitStatus(settings(std::get<SettingsOptions>(*command), from));
}
