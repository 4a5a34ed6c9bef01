#include "cli/ServerCommand.h"

#include "base/Lines.h"
#include "smtp/ServerReportText.h"

namespace {

QString wordFor(ReportLine::Kind kind)
{
    switch (kind) {
    case ReportLine::Kind::Good:
        return QStringLiteral("ok  ");
    case ReportLine::Kind::Note:
        return QStringLiteral("note");
    case ReportLine::Kind::Bad:
        break;
    }
    return QStringLiteral("bad ");
}

} // namespace

ServerCommand::ServerCommand(const ServerOptions &options, const CliSurroundings &from)
    : m_options(options), m_probe(from.probe), m_output(from.output)
{
    connect(&m_probe, &ServerProbe::finished, this, &ServerCommand::report);
}

void ServerCommand::start()
{
    m_probe.begin(m_options.server);
}

void ServerCommand::interrupt()
{
    m_probe.giveUp();
    end(ExitCode::Interrupted);
}

void ServerCommand::report(const ServerReport &report)
{
    for (const ReportLine &line : linesOf(report)) {
        m_output.result(wordFor(line.kind) + QLatin1String("  ") + line.label +
                        QLatin1String(": ") + withVisibleControls(line.text));
    }
    end(report.failure.isEmpty() ? ExitCode::Success : ExitCode::SessionError);
}
