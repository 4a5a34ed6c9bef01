#include "journal/ReportCommands.h"

ReportCommands::ReportCommands(const Form &form, const RecipientList &recipients,
                               const Clock &clock, Prompts &prompts, CLog &AppLog)
    : m_form(form), m_recipients(recipients), m_clock(clock), m_prompts(prompts), m_AppLog(AppLog)
{}

Report ReportCommands::report() const
{
    return {{m_form.projectPath(), m_form.text(Control::txtOggetto),
             m_form.text(Control::txtEmailMittente), m_clock.now(), m_form.language()},
            m_recipients.rows()};
}

void ReportCommands::cmdReport_Click()
{
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::Save;
    dialog.title = tr("Select the file for the report:");
    dialog.filter = tr("Report (*.csv)|*.csv|JSON (*.json)|*.json");
    dialog.defaultExtension = QStringLiteral("csv");
    dialog.asksBeforeOverwriting = true;
    const auto stands = [this, project = m_form.situation().project] {
        return m_form.situation().project == project;
    };
    m_prompts.askFile(dialog, stands, [this](const QString &path) {
        if (path.isEmpty())
            return;
        if (const auto written = write(path); !written)
            m_prompts.notice({Icon::Critical, tr("Report"), written.error().toText()});
    });
}

tl::expected<void, FileError> ReportCommands::write(const QString &path) const
{
    const auto written = report().write(path);
    if (written)
        m_AppLog.WriteMessage(QLatin1String("Report '") + path + QLatin1String("' written"));
    return written;
}
