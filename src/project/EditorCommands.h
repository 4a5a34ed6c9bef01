#pragma once

#include "base/Shell.h"
#include "form/Form.h"
#include "message/MessageFiles.h"
#include "project/WindowSettings.h"
#include "prompts/Prompts.h"

#include <QCoreApplication>

/// Opening the message files in the user's editors. Nothing waits for an editor.
class EditorCommands
{
    Q_DECLARE_TR_FUNCTIONS(EditorCommands)

public:
    EditorCommands(Form &form, MessageFiles &files, const WindowSettings &settings,
                   Prompts &prompts, Shell &shell);

    /// Opens the text message; when none is chosen yet, a new one is created first.
    void cmdPreviewTXT_Click();
    /// The same for the HTML message.
    void cmdPreviewHTML_Click();

private:
    void edit(Control box, const QString &newFilter, const QString &editor);
    void start(const QString &editor, const QString &path);

    Form &m_form;
    MessageFiles &m_files;
    const WindowSettings &m_settings;
    Prompts &m_prompts;
    Shell &m_shell;
};
