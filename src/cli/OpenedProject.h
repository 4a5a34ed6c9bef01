#pragma once

#include "cli/CliPrompts.h"
#include "cli/CliSurroundings.h"

/// A project opened to be looked at: its log has no file, and the pictures that loading it put into
/// the working folder are taken away again.
class OpenedProject
{
public:
    OpenedProject(const QString &path, const CliSurroundings &from)
        : m_prompts(from.output, false),
          m_log(from.clock, from.formats, from.codePage),
          workspace(from.forWorkspace(m_prompts, m_log)),
          m_outcome(workspace.projectCommands.open(path))
    {}
    OpenedProject(const OpenedProject &) = delete;
    OpenedProject &operator=(const OpenedProject &) = delete;
    ~OpenedProject() { workspace.bodies.emptyWorkingFolder(); }

    [[nodiscard]] bool isWhole() const
    {
        return m_outcome == LoadOutcome::Loaded || m_outcome == LoadOutcome::LoadedPaused;
    }
    /// Whether there is a row at that position; says so when there is none.
    [[nodiscard]] bool hasRow(int position, Output &output) const
    {
        const int count = workspace.recipients.count();
        if (position >= 1 && position <= count)
            return true;
        output.message(QStringLiteral("There is no row %1: the project has %2 recipients.")
                           .arg(position)
                           .arg(count));
        return false;
    }

private:
    CliPrompts m_prompts;
    CLog m_log;

public:
    Workspace workspace;

private:
    LoadOutcome m_outcome;
};
