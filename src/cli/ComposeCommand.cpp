#include "cli/ComposeCommand.h"

#include "cli/OpenedProject.h"

ExitCode compose(const ComposeOptions &options, const CliSurroundings &from)
{
    OpenedProject project(options.project, from);
    if (!project.isWhole() || !project.hasRow(options.row, from.output))
        return ExitCode::Refused;
    TrialMessage trial(from.forTrial(project.workspace));
    const auto composed =
        trial.compose(options.row, project.workspace.recipients.at(options.row).address);
    if (!composed) {
        from.output.message(composed.error());
        return ExitCode::Refused;
    }
    from.output.bytes(*composed);
    return ExitCode::Success;
}
