#include "message/MessageFiles.h"

#include "base/Files.h"
#include "base/modMain.h"
#include "settings/Settings.h"

MessageFiles::MessageFiles(Form &form, MessageSize &size, Prompts &prompts, SettingsStore &settings,
                           const CodePage &codePage)
    : m_form(form), m_size(size), m_prompts(prompts), m_settings(settings), m_codePage(codePage)
{}

QString MessageFiles::documentFolder() const
{
    return m_codePage.decode(Settings::ReadDefaultDocPath(m_settings));
}

void MessageFiles::rememberFolderOf(const QString &name)
{
    Settings::SaveDefaultDocPath(m_settings, m_codePage.encode(FolderOf(name)).toStdString());
}

Stands MessageFiles::whileEnabled(Control control) const
{
    return [&form = m_form, control, project = m_form.situation().project] {
        return form.situation().project == project && form.isEnabled(control);
    };
}

void MessageFiles::cmdEmail_Click()
{
    FileDialog dialog;
    //: The title for the text file; the Italian one differs from the HTML file's on purpose.
    dialog.title = tr("Select the message file:", "text file");
    dialog.filter = tr("Text file (*.txt)|*.txt|All files (*.*)|*.*");
    dialog.defaultExtension = QStringLiteral("txt");
    choose(Control::txtEmail, Control::cmdEmail, dialog);
}

void MessageFiles::cmdHTML_Click()
{
    FileDialog dialog;
    //: The title for the HTML file; the Italian one differs from the text file's on purpose.
    dialog.title = tr("Select the message file:", "HTML file");
    dialog.filter = tr("HTML Files (*.htm; *.html)|*.htm; *.html|All files (*.*)|*.*");
    choose(Control::txtHTML, Control::cmdHTML, dialog);
}

void MessageFiles::choose(Control box, Control button, FileDialog dialog)
{
    dialog.initialFolder = documentFolder();
    m_prompts.askFile(dialog, whileEnabled(button), [this, box](const QString &name) {
        if (name.isEmpty())
            return;
        rememberFolderOf(name);
        use(box, name);
    });
}

void MessageFiles::use(Control box, const QString &path)
{
    constexpr qint16 ShownWidth = 60;
    m_form.setTag(box, path);
    m_form.setText(box, Wrap(path, ShownWidth));
    m_form.setProjectModified(true);
    m_size.UpdateMessageSize();
}

void MessageFiles::cmdCancellaTXT_Click()
{
    forget(Control::txtEmail);
}

void MessageFiles::cmdCancellaHTML_Click()
{
    forget(Control::txtHTML);
}

void MessageFiles::forget(Control box)
{
    m_form.setText(box, {});
    m_form.setTag(box, {});
    m_form.setProjectModified(true);
    m_size.UpdateMessageSize();
}

void MessageFiles::NewMessageFile(const QString &filter, std::function<void(QString)> then)
{
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::Save;
    dialog.title = tr("New message file:");
    dialog.filter = filter;
    dialog.initialFolder = documentFolder();
    m_prompts.askFile(dialog, whileEnabled(Control::cmdPreviewTXT),
                      [this, then = std::move(then)](const QString &name) {
                          if (!name.isEmpty())
                              rememberFolderOf(name);
                          then(name.isEmpty() || create(name) ? name : QString());
                      });
}

bool MessageFiles::create(const QString &name)
{
    if (isExistingFile(name))
        return true;
    const auto created = replaceWholeFile(name, {});
    if (!created)
        m_prompts.notice({Icon::Critical, tr("Error"), created.error().toText()});
    return created.has_value();
}
