#include "project/WindowSettings.h"

#include "base/modMain.h"
#include "settings/IOReg.h"
#include "settings/Settings.h"

WindowSettings::WindowSettings(Form &form, SettingsStore &store, const CodePage &codePage,
                               const QString &programFolder)
    : m_form(form), m_store(store), m_codePage(codePage), m_programFolder(programFolder)
{}

void WindowSettings::LoadSettings()
{
    IOReg reg(m_store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    const auto text = [this, &reg](const char *name) {
        std::string value;
        reg.ReadStr(name, value);
        return m_codePage.decode(value);
    };
    m_form.setText(Control::txtServer, text(Settings::Server));
    m_form.setText(Control::txtMittente, text(Settings::Mittente));
    m_form.setText(Control::txtEmailMittente, text(Settings::EmailMittente));
    // One holder for both boxes: when only "MultiSend" is missing it takes the value of "Ricevuta",
    // and that is meant so.
    std::int32_t holder = 0;
    reg.ReadInt(Settings::Ricevuta, holder);
    m_form.setChecked(Control::chkRicevuta, holder != 0);
    m_form.setText(Control::txtControl, text(Settings::Cotrollo));
    m_form.setText(Control::txtNMsg, text(Settings::nMsg));
    m_form.setText(Control::txtPausa, text(Settings::Pausa));
    reg.ReadInt(Settings::MultiSend, holder);
    m_form.setChecked(Control::chkMultiSend, holder != 0);
    setEditors(text(Settings::TXTEditor), text(Settings::HTMLEditor));
}

void WindowSettings::setEditors(const QString &textEditor, const QString &htmlEditor)
{
    TXTEditorPath = textEditor.isEmpty() ? QStringLiteral("notepad.exe") : textEditor;
    HTMLEditorPath = htmlEditor.isEmpty()
                         ? joinPath(m_programFolder, QStringLiteral("htmledit.exe"))
                         : htmlEditor;
}

void WindowSettings::SaveSettings() const
{
    IOReg reg(m_store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    const auto write = [this, &reg](const char *name, const QString &value) {
        reg.WriteStr(name, m_codePage.encode(value).toStdString());
    };
    write(Settings::Server, m_form.text(Control::txtServer));
    write(Settings::Mittente, m_form.text(Control::txtMittente));
    write(Settings::EmailMittente, m_form.text(Control::txtEmailMittente));
    reg.WriteInt(Settings::Ricevuta, m_form.isChecked(Control::chkRicevuta) ? 1 : 0);
    write(Settings::Cotrollo, m_form.text(Control::txtControl));
    write(Settings::nMsg, m_form.text(Control::txtNMsg));
    write(Settings::Pausa, m_form.text(Control::txtPausa));
    reg.WriteInt(Settings::MultiSend, m_form.isChecked(Control::chkMultiSend) ? 1 : 0);
    write(Settings::HTMLEditor, HTMLEditorPath);
    write(Settings::TXTEditor, TXTEditorPath);
}
