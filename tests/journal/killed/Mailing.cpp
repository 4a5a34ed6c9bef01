#include "Mailing.h"

#include "Steps.h"

#include <QTimer>

#include <algorithm>

void PromptSync::begin(const AppendedFile::DiskJob &job, std::function<void()> begins, Done done)
{
    QTimer::singleShot(0, this, [job, begins = std::move(begins), done = std::move(done)] {
        begins();
        done(job());
    });
}

HastyTimer::HastyTimer()
{
    m_timer.callOnTimeout(&m_timer, [this] {
        Steps::take("a tick");
        onTick();
    });
}

void HastyTimer::setEnabled(bool enabled)
{
    if (enabled)
        m_timer.start(0);
    else
        m_timer.stop();
}

void DecliningPrompts::notice(const Notice &notice)
{
    if (notice.icon != Icon::Information)
        complain(notice.text + u' ' + notice.detail);
}

void DecliningPrompts::ask(const Question &question, Stands stands,
                           std::function<void(Answer)> then)
{
    if (question.topic != Topic::SaveBeforeStart) {
        complain(question.text);
        return;
    }
    QTimer::singleShot(0, [stands = std::move(stands), then = std::move(then)] {
        if (stands())
            then(Answer::No);
    });
}

void DecliningPrompts::askText(const InputBox &box, Stands, std::function<void(QString)>)
{
    complain(box.prompt);
}

void DecliningPrompts::askFile(const FileDialog &dialog, Stands, std::function<void(QString)>)
{
    complain(dialog.title);
}

Mailing::Mailing(const QString &folder, DiskSync &sync, Say say)
    : m_say(std::move(say)),
      m_client(m_clock, m_fakes.surroundings()),
      m_store((folder + QLatin1String("/settings.reg")).toStdString()),
      m_log(folder, m_clock, m_formats, m_codePage),
      m_workspace({Language::English, m_prompts, m_log, m_store, m_client, m_clock, m_formats,
                   m_codePage, m_Timer, m_Timer2, folder, QStringLiteral("shop-pc")}),
      m_journal({m_workspace.form, m_workspace.recipients, m_workspace.engine,
                 m_workspace.projectFile, m_prompts, m_log, m_clock, m_codePage, sync, folder}),
      m_recovery(m_journal, m_workspace.projectCommands, m_workspace.form, m_prompts)
{
    m_fakes.trace.isWanted = false;
    connect(&m_workspace.engine, &SendingEngine::runEnded, this, &Mailing::end);
    m_prompts.complain = [this](const QString &text) {
        m_say(QStringLiteral("complaint: ") + text);
        Q_EMIT ended();
    };
}

void Mailing::send(const QString &project)
{
    const auto left = m_recovery.leftRunOf(project);
    if (left && left->record.totals().waiting > 0) {
        m_recovery.continueRun(*left);
        m_workspace.engine.cmdPausa_Click();
        return;
    }
    if (left)
        m_recovery.openAsItIs(*left);
    else
        m_workspace.projectCommands.open(project);
    const auto &rows = m_workspace.recipients.rows();
    if (left || std::any_of(rows.begin(), rows.end(), mayHaveTheMessage))
        end(); // it had come to its end
    else
        m_workspace.engine.cmdAvvio_Click();
}

void Mailing::end()
{
    m_workspace.projectFile.SaveProject(m_workspace.form.projectPath(), [this](bool) {
        m_journal.rowsSeen();
        tellRows();
        Q_EMIT ended();
    });
}

void Mailing::tellRows()
{
    for (const Recipient &row : m_workspace.recipients.rows()) {
        if (isInDoubt(row))
            m_say(QStringLiteral("in doubt: ") + row.address);
        else if (stateOfWord(row.state) != RowState::Sent)
            m_say(QStringLiteral("left: ") + row.address + u' ' + row.state);
    }
    m_say(QStringLiteral("done"));
}
