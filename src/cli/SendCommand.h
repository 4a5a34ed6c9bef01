#pragma once

#include "cli/CliPrompts.h"
#include "cli/CliSurroundings.h"
#include "cli/CommandLine.h"
#include "cli/LongCommand.h"
#include "journal/Recovery.h"
#include "journal/ReportCommands.h"
#include "project/Workspace.h"

#include <functional>

/// `send`: a run without a window, from Start or, for a project that was saved paused, from Resume.
class SendCommand : public LongCommand
{
    Q_OBJECT

public:
    SendCommand(const SendOptions &options, const CliSurroundings &from);
    ~SendCommand() override;

    void start() override;
    /// Ctrl-C: the first time pauses after the message in flight and saves the project, the second
    /// time ends at once, with the project saved as paused and the cursor past that message.
    void interrupt() override;

private:
    /// Why no more is sent.
    enum class Ending {
        Over,        ///< no row was left
        Failed,      ///< the session, and with it the run
        Interrupted, ///< paused by Ctrl-C
        Halted,      ///< paused by itself
    };

    void startAfter(const LeftRun &left);
    void startStopped();
    void resume();
    [[nodiscard]] bool leaveOutThoseSent();
    void begun();
    void showRow(int position);
    void showProgress();
    void endRun(Ending ending);
    void save(std::function<void()> then);
    void conclude(Ending ending);
    [[nodiscard]] ExitCode codeOf(Ending ending) const;
    [[nodiscard]] Totals totalsOfProject() const;
    [[nodiscard]] bool writeReport();
    void nameThoseInDoubt();
    void summarize(Ending ending, ExitCode code);
    void finish(ExitCode code);

    SendOptions m_options;
    Output &m_output;
    CliPrompts m_prompts;
    CLog m_AppLog;
    Workspace m_workspace;
    RunJournal m_journal;
    Recovery m_recovery;
    ReportCommands m_reports;
    bool m_isWrittenBack = false; ///< whatever the options say
    bool m_running = false;
    bool m_interrupted = false;
    bool m_unsaved = false; ///< the project could not be written back
    bool m_someRefused = false;
    int m_total = 0; ///< rows that this run is to reach, with the copy for the control address
    int m_done = 0;  ///< of them
};
