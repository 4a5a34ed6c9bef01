#pragma once

#include "journal/RunJournal.h"
#include "journal/RunRecord.h"
#include "project/ProjectCommands.h"
#include "prompts/Prompts.h"

#include <QCoreApplication>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// A run that ended with its program. While it lives, no other process can take it or run its
/// project.
struct LeftRun
{
    QString file; ///< the record's
    RunRecord record;
    std::shared_ptr<RunLock> lock;
    std::shared_ptr<RunLock> projectLock;
    std::optional<LockRefusal> holder; ///< the process that has it open: it is not ours to take
};

/// What to do about runs that a program left behind: found at its next start, or when their project
/// is opened.
class Recovery
{
    Q_DECLARE_TR_FUNCTIONS(Recovery)

public:
    /// Asks before the commands open a project from now on.
    Recovery(RunJournal &journal, ProjectCommands &commands, const Form &form, Prompts &prompts);

    /// Asks about each run that was left behind, newest first, until one is shown.
    void atStart();
    /// The newest run of that project.
    [[nodiscard]] std::optional<LeftRun> leftRunOf(const QString &path) const;
    /// "578 of 1,450 sent, 3 refused, 2 in doubt, 867 left"
    [[nodiscard]] static QString summaryOf(const RunRecord &record, Language language);
    /// Shows the run paused where it stood; it goes on with Resume.
    void continueRun(const LeftRun &run);
    /// Shows what became of everyone, without a run.
    void openAsItIs(const LeftRun &run);
    /// Throws the record away.
    void forget(const LeftRun &run);

private:
    void beforeOpening(const QString &path, std::function<void()> openFile);
    void askAboutNext(QStringList files);
    void ask(const LeftRun &run, std::function<void()> onForgotten);
    [[nodiscard]] std::optional<LeftRun> take(const QString &file) const;
    void show(const LeftRun &run, const ProjectData &project);
    void sayUnreadable(const QString &file);

    RunJournal &m_journal;
    ProjectCommands &m_commands;
    const Form &m_form;
    Prompts &m_prompts;
};
