#pragma once

#include "cli/CliSurroundings.h"
#include "cli/CommandLine.h"
#include "cli/LongCommand.h"

/// `server`: tries a server out and says how far it got; sends nothing.
class ServerCommand : public LongCommand
{
    Q_OBJECT

public:
    ServerCommand(const ServerOptions &options, const CliSurroundings &from);

    void start() override;
    void interrupt() override;

private:
    void report(const ServerReport &report);

    ServerOptions m_options;
    ServerProbe &m_probe;
    Output &m_output;
};
