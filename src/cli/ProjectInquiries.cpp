#include "cli/ProjectInquiries.h"

#include "cli/CliPrompts.h"
#include "sending/StartRefusals.h"

namespace {

// A project opened to be looked at: its log has no file, and the pictures that loading it put into
// the working folder are taken away again.
class OpenedProject
{
public:
    OpenedProject(const QString &path, const CliSurroundings &from)
        : m_prompts(from.output, false),
          m_log(from.clock, from.formats, from.codePage),
          workspace(from.forWorkspace(m_prompts, m_log)),
          outcome(workspace.projectCommands.open(path))
    {}
    OpenedProject(const OpenedProject &) = delete;
    OpenedProject &operator=(const OpenedProject &) = delete;
    ~OpenedProject() { workspace.bodies.emptyWorkingFolder(); }

    [[nodiscard]] bool isWhole() const
    {
        return outcome == LoadOutcome::Loaded || outcome == LoadOutcome::LoadedPaused;
    }

private:
    CliPrompts m_prompts;
    CLog m_log;

public:
    Workspace workspace;
    LoadOutcome outcome;
};

} // namespace

ExitCode check(const CheckOptions &options, const CliSurroundings &from)
{
    OpenedProject opened(options.project, from);
    if (!opened.isWhole())
        return ExitCode::Refused;
    const Workspace &workspace = opened.workspace;
    const Form &form = workspace.form;
    QStringList findings;
    if (opened.outcome == LoadOutcome::LoadedPaused) {
        if (const auto refusal = refusalOfPacketNumbers(form))
            findings.append(refusal->text);
    } else {
        for (const Refusal &refusal : refusalsOfStart(form, workspace.recipients.count()))
            findings.append(refusal.text);
    }
    const QString htmlPath = form.tag(Control::txtHTML);
    if (const auto missing = missingMessageFile(form)) {
        findings.append(QStringLiteral("The message file does not exist: %1").arg(*missing));
    } else if (!opened.workspace.engine.loadBodies()) {
        findings.append(QStringLiteral("A message file cannot be read."));
    } else if (!htmlPath.isEmpty() && !workspace.bodies.CheckLinkedImages(htmlPath)) {
        findings.append(QStringLiteral("Some pictures linked to the HTML message are not in its "
                                       "folder and will not be sent."));
    }
    for (const QString &finding : findings)
        from.output.result(finding);
    if (findings.isEmpty()) {
        from.output.result(QStringLiteral("Nothing to object: %1 of %2 recipients are checked.")
                               .arg(workspace.recipients.checkedFrom(1))
                               .arg(workspace.recipients.count()));
    }
    return findings.isEmpty() ? ExitCode::Success : ExitCode::Refused;
}

ExitCode compose(const ComposeOptions &options, const CliSurroundings &from)
{
    OpenedProject opened(options.project, from);
    if (!opened.isWhole())
        return ExitCode::Refused;
    const int count = opened.workspace.recipients.count();
    if (options.row < 1 || options.row > count) {
        from.output.message(QStringLiteral("There is no row %1: the project has %2 recipients.")
                                .arg(options.row)
                                .arg(count));
        return ExitCode::Refused;
    }
    if (!opened.workspace.engine.loadBodies())
        return ExitCode::Refused;
    const Recipient &row = opened.workspace.recipients.at(options.row);
    from.SMTP.Reset();
    opened.workspace.filler.fill(from.SMTP, opened.workspace.bodies, {{row.address}, row.name});
    const auto composed = from.composer.compose();
    if (!composed) {
        from.output.message(composed.error());
        return ExitCode::Refused;
    }
    from.output.bytes(*composed);
    return ExitCode::Success;
}
