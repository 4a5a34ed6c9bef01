#include "cli/CheckCommand.h"

#include "base/Lines.h"

#include <algorithm>

namespace {

QString wordFor(Finding::Kind kind)
{
    switch (kind) {
    case Finding::Kind::Refused:
        return QStringLiteral("refused");
    case Finding::Kind::Fails:
        return QStringLiteral("fails");
    case Finding::Kind::Asked:
        return QStringLiteral("asked");
    case Finding::Kind::Advice:
        break;
    }
    return QStringLiteral("advice");
}

} // namespace

CheckCommand::CheckCommand(const CheckOptions &options, const CliSurroundings &from)
    : m_options(options),
      m_output(from.output),
      m_project(options.project, from),
      m_trial(from.forTrial(m_project.workspace)),
      m_preflight({m_project.workspace.form, m_project.workspace.recipients,
                   m_project.workspace.attachments, m_project.workspace.reader, m_trial,
                   from.probe})
{
    connect(&m_preflight, &Preflight::finished, this, &CheckCommand::report);
}

void CheckCommand::start()
{
    if (!m_project.isWhole()) {
        end(ExitCode::Refused);
    } else if (m_options.offline) {
        m_preflight.look();
        report();
    } else {
        m_preflight.begin();
    }
}

void CheckCommand::interrupt()
{
    m_preflight.giveUp();
    end(ExitCode::Interrupted);
}

void CheckCommand::report()
{
    const QList<Finding> &findings = m_preflight.findings();
    for (const Finding &finding : findings)
        m_output.result(wordFor(finding.kind) + QLatin1String(": ") +
                        withVisibleControls(finding.text));
    if (findings.isEmpty()) {
        const RecipientList &recipients = m_project.workspace.recipients;
        m_output.result(QStringLiteral("Nothing to object: %1 of %2 recipients are checked.")
                            .arg(recipients.checkedFrom(1))
                            .arg(recipients.count()));
    }
    const bool isAdviceAlone =
        std::all_of(findings.begin(), findings.end(),
                    [](const Finding &finding) { return finding.kind == Finding::Kind::Advice; });
    end(isAdviceAlone ? ExitCode::Success : ExitCode::Refused);
}
