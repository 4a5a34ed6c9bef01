#pragma once

#include "cli/CommandLine.h"
#include "cli/LongCommand.h"
#include "cli/OpenedProject.h"
#include "preflight/TestMessage.h"

/// `test`: one message of the project to the sender's own address, outside any run.
class TestCommand : public LongCommand
{
    Q_OBJECT

public:
    TestCommand(const TestOptions &options, const CliSurroundings &from);

    void start() override;
    void interrupt() override;

private:
    void report(const QString &text);

    TestOptions m_options;
    Output &m_output;
    OpenedProject m_project;
    TrialMessage m_trial;
    TestMessage m_test;
};
