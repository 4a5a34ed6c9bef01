#pragma once

#include "cli/CommandLine.h"
#include "cli/LongCommand.h"
#include "cli/OpenedProject.h"
#include "preflight/Preflight.h"

/// `check`: what should be known about a project before it is sent; nothing is sent.
class CheckCommand : public LongCommand
{
    Q_OBJECT

public:
    CheckCommand(const CheckOptions &options, const CliSurroundings &from);

    void start() override;
    void interrupt() override;

private:
    void report();

    CheckOptions m_options;
    Output &m_output;
    OpenedProject m_project;
    TrialMessage m_trial;
    Preflight m_preflight;
};
