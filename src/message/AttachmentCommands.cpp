#include "message/AttachmentCommands.h"

AttachmentCommands::AttachmentCommands(Form &form, Attachments &attachments, MessageSize &size,
                                       Prompts &prompts, CLog &AppLog)
    : m_form(form), m_attachments(attachments), m_size(size), m_prompts(prompts), m_AppLog(AppLog)
{}

void AttachmentCommands::cmdAggiungi_Click()
{
    FileDialog dialog;
    dialog.title = tr("Select the file to attach:");
    dialog.filter = tr("All files (*.*)|*.*");
    dialog.defaultExtension = QStringLiteral("*");
    const auto stands = [&form = m_form, project = m_form.situation().project] {
        return form.situation().project == project && form.isEnabled(Control::cmdAggiungi);
    };
    m_prompts.askFile(dialog, stands, [this](const QString &name) {
        if (!name.isEmpty())
            attach(name);
    });
}

void AttachmentCommands::attach(const QString &path)
{
    m_attachments.add(path);
    m_form.setProjectModified(true);
    if (!m_size.UpdateMessageSize())
        return;
    m_AppLog.WriteMessage(QLatin1String("Attachment file '") + path + QLatin1String("' added"));
}

void AttachmentCommands::cmdRimuovi_Click(int selected)
{
    // The log gets the shown text, not the path, and an empty name when nothing was removed.
    QString text;
    if (selected >= 0 && selected < m_attachments.paths().size()) {
        text = Attachments::shownText(m_attachments.paths().at(selected));
        m_attachments.removeAt(selected);
    }
    m_form.setProjectModified(true);
    if (!m_size.UpdateMessageSize())
        return;
    m_AppLog.WriteMessage(QLatin1String("Attachment file '") + text + QLatin1String("' removed"));
}
