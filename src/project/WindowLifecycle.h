#pragma once

#include "form/Form.h"
#include "project/ProjectCommands.h"
#include "project/ProjectFile.h"
#include "project/WindowSettings.h"
#include "prompts/Prompts.h"
#include "sending/SendingEngine.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>

/// Who closes the window.
enum class UnloadMode {
    User,
    SessionEnds, ///< the desktop's session, or a signal that asks the program to end
};

/// The whole command line as the path of one project, absolute and without any double quote; empty
/// when there is none. The arguments come without the program's name.
[[nodiscard]] QString projectOfCommandLine(const QStringList &arguments);

/// How the main window's life begins and ends.
class WindowLifecycle
{
    Q_DECLARE_TR_FUNCTIONS(WindowLifecycle)

public:
    /// endProcess ends the process at once: nothing that the window or its core would still do
    /// happens any more.
    WindowLifecycle(Form &form, ProjectCommands &commands, ProjectFile &file,
                    WindowSettings &settings, SendingEngine &engine, Prompts &prompts,
                    std::function<void()> endProcess);

    /// Settings, then the project of that path unless it is empty.
    void Form_Load(const QString &projectPath);
    /// The window is asked to close. It stays until the user has answered, and longer when the
    /// answer is Cancel or the project cannot be saved.
    void Form_QueryUnload(UnloadMode mode);
    /// Ends at once: no question, and the settings are not saved.
    void mnuEsci_Click();

    /// Called before the process ends with the window's close, for what else is to be kept.
    std::function<void()> beforeUnload;
    /// Called before the process ends because the user wants it.
    std::function<void()> onUserLeaves;

private:
    void queryUnload();
    void leave();
    void Form_Unload();

    Form &m_form;
    ProjectCommands &m_commands;
    ProjectFile &m_file;
    WindowSettings &m_settings;
    SendingEngine &m_engine;
    Prompts &m_prompts;
    std::function<void()> m_endProcess;
};
