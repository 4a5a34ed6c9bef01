#pragma once

#include "base/CodePage.h"
#include "form/Form.h"
#include "message/MessageSize.h"
#include "prompts/Prompts.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>

/// Choosing, forgetting and creating the project's two message files.
class MessageFiles
{
    Q_DECLARE_TR_FUNCTIONS(MessageFiles)

public:
    MessageFiles(Form &form, MessageSize &size, Prompts &prompts, SettingsStore &settings,
                 const CodePage &codePage);

    void cmdEmail_Click();
    void cmdHTML_Click();
    void cmdCancellaTXT_Click();
    void cmdCancellaHTML_Click();
    /// Makes that file the message of the box, txtEmail or txtHTML.
    void use(Control box, const QString &path);
    /// Asks for the name of a new message file, creates it empty when it is missing, and hands the
    /// name on; an empty one when the user cancels, or when a box said that it cannot be created.
    void NewMessageFile(const QString &filter, std::function<void(QString)> then);

private:
    void choose(Control box, Control button, FileDialog dialog);
    void forget(Control box);
    bool create(const QString &name);
    [[nodiscard]] QString documentFolder() const;
    void rememberFolderOf(const QString &name);
    [[nodiscard]] Stands whileEnabled(Control control) const;

    Form &m_form;
    MessageSize &m_size;
    Prompts &m_prompts;
    SettingsStore &m_settings;
    const CodePage &m_codePage;
};
