#include "cli/TestCommand.h"

#include "base/Lines.h"

#include <algorithm>

namespace {

ExitCode codeOf(TestMessage::Outcome outcome)
{
    switch (outcome) {
    case TestMessage::Outcome::Accepted:
        return ExitCode::Success;
    case TestMessage::Outcome::Refused:
        return ExitCode::SomeRefused;
    case TestMessage::Outcome::NotBegun:
        return ExitCode::Refused;
    case TestMessage::Outcome::Failed:
        break;
    }
    return ExitCode::SessionError;
}

} // namespace

TestCommand::TestCommand(const TestOptions &options, const CliSurroundings &from)
    : m_options(options),
      m_output(from.output),
      m_project(options.project, from),
      m_trial(from.forTrial(m_project.workspace)),
      m_test(m_trial)
{
    connect(&m_test, &TestMessage::finished, this,
            [this](bool, const QString &text) { report(text); });
}

void TestCommand::start()
{
    const Workspace &workspace = m_project.workspace;
    if (!m_project.isWhole() || (m_options.row && !m_project.hasRow(*m_options.row, m_output))) {
        end(ExitCode::Refused);
        return;
    }
    const int first = std::min(1, workspace.recipients.count());
    m_test.send(m_options.row.value_or(first),
                m_options.to.value_or(workspace.form.text(Control::txtEmailMittente)));
}

void TestCommand::interrupt()
{
    m_test.giveUp();
    end(ExitCode::Interrupted);
}

void TestCommand::report(const QString &text)
{
    const ExitCode code = codeOf(m_test.outcome());
    if (code == ExitCode::Success || code == ExitCode::SomeRefused)
        m_output.result(withVisibleControls(text));
    else
        m_output.message(withVisibleControls(text));
    end(code);
}
