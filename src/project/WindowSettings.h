#pragma once

#include "base/CodePage.h"
#include "form/Form.h"
#include "settings/SettingsStore.h"

#include <QString>

/// The part of the form that is kept from one run of the program to the next.
class WindowSettings
{
public:
    WindowSettings(Form &form, SettingsStore &store, const CodePage &codePage,
                   const QString &programFolder);

    void LoadSettings();
    void SaveSettings() const;
    /// Sets the commands of the two editors; an empty one becomes its default.
    void setEditors(const QString &textEditor, const QString &htmlEditor);

    QString HTMLEditorPath; ///< the command of the HTML editor
    QString TXTEditorPath;  ///< the command of the text editor

private:
    Form &m_form;
    SettingsStore &m_store;
    const CodePage &m_codePage;
    QString m_programFolder;
};
