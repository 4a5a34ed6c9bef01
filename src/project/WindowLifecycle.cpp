#include "project/WindowLifecycle.h"

#include <QFileInfo>

QString projectOfCommandLine(const QStringList &arguments)
{
    const QString path = arguments.join(u' ').remove(u'"');
    return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
}

WindowLifecycle::WindowLifecycle(Form &form, ProjectCommands &commands, ProjectFile &file,
                                 WindowSettings &settings, SendingEngine &engine, Prompts &prompts,
                                 std::function<void()> endProcess)
    : m_form(form),
      m_commands(commands),
      m_file(file),
      m_settings(settings),
      m_engine(engine),
      m_prompts(prompts),
      m_endProcess(std::move(endProcess))
{}

void WindowLifecycle::Form_Load(const QString &projectPath)
{
    m_commands.UpdateCaption();
    m_settings.LoadSettings();
    if (!projectPath.isEmpty()) {
        m_commands.openAsking(projectPath, [this, projectPath] {
            m_commands.open(projectPath);
            m_form.setProjectModified(false);
        });
    }
    m_form.setProjectModified(false);
}

void WindowLifecycle::Form_QueryUnload(UnloadMode mode)
{
    if (mode == UnloadMode::SessionEnds) {
        m_file.finishWaitingSave();
        Form_Unload();
        return;
    }
    m_engine.turns().take([this] { queryUnload(); });
}

void WindowLifecycle::queryUnload()
{
    if (!m_form.projectModified()) {
        leave();
        return;
    }
    Question question;
    question.topic = Topic::SaveBeforeExit;
    question.buttons = Buttons::YesNoCancel;
    question.title = tr("Save");
    question.text = tr("Save changes before exit?");
    const auto stands = [&form = m_form, project = m_form.situation().project] {
        return form.situation().project == project;
    };
    m_prompts.ask(question, stands, [this](Answer answer) {
        if (answer == Answer::No) {
            leave();
        } else if (answer == Answer::Yes) {
            // A save that is abandoned lets the window close all the same; one that failed does
            // not, since nobody has said that the changes may be lost.
            m_commands.save([this](SaveOutcome outcome) {
                if (outcome != SaveOutcome::Failed)
                    leave();
            });
        }
    });
}

void WindowLifecycle::leave()
{
    if (onUserLeaves)
        onUserLeaves();
    Form_Unload();
}

void WindowLifecycle::Form_Unload()
{
    m_settings.SaveSettings();
    if (beforeUnload)
        beforeUnload();
    m_endProcess();
}

void WindowLifecycle::mnuEsci_Click()
{
    if (onUserLeaves)
        onUserLeaves();
    m_endProcess();
}
