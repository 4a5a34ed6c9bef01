#include "journal/Recovery.h"

#include "base/modMain.h"
#include "recipients/TotalsText.h"

#include <algorithm>

Recovery::Recovery(RunJournal &journal, ProjectCommands &commands, const Form &form,
                   Prompts &prompts)
    : m_journal(journal), m_commands(commands), m_form(form), m_prompts(prompts)
{
    m_commands.beforeOpening = [this](const QString &path, std::function<void()> openFile) {
        beforeOpening(path, std::move(openFile));
    };
}

std::optional<LeftRun> Recovery::take(const QString &file) const
{
    auto record = m_journal.read(file);
    if (!record)
        return std::nullopt;
    LeftRun run;
    run.file = file;
    run.record = std::move(*record);
    // Where no lock can be made, nothing can be recorded either: it can be looked at.
    const auto keep = [&run](RunJournal::Locked locked, std::shared_ptr<RunLock> &lock) {
        if (locked)
            lock = std::move(*locked);
        else if (locked.error().isHeld)
            run.holder = locked.error();
    };
    keep(m_journal.lockOf(file), run.lock);
    if (!run.holder)
        keep(m_journal.lockOfProject(run.record.projectPath), run.projectLock);
    return run;
}

std::optional<LeftRun> Recovery::leftRunOf(const QString &path) const
{
    const QString project = RunJournal::realPath(path);
    for (const QString &file : m_journal.folder().files()) {
        if (projectOfRun(file) != project)
            continue;
        if (auto run = take(file); run && run->record.hasBegun())
            return run;
    }
    return std::nullopt;
}

void Recovery::atStart()
{
    askAboutNext(m_journal.folder().files());
}

void Recovery::askAboutNext(QStringList files)
{
    while (!files.isEmpty()) {
        const QString file = files.takeFirst();
        const auto run = take(file);
        if (!run)
            sayUnreadable(file);
        if (run && !run->holder && run->record.hasBegun()) {
            ask(*run, [this, files] { askAboutNext(files); });
            return;
        }
    }
}

void Recovery::beforeOpening(const QString &path, std::function<void()> openFile)
{
    const auto run = leftRunOf(path);
    if (run && run->holder) {
        m_journal.sayHeld(*run->holder);
        return;
    }
    if (run) {
        ask(*run, std::move(openFile));
        return;
    }
    for (const QString &file : m_journal.folder().files()) {
        if (projectOfRun(file) == RunJournal::realPath(path) && !take(file))
            sayUnreadable(file);
    }
    openFile();
}

void Recovery::sayUnreadable(const QString &file)
{
    m_prompts.notice({Icon::Critical, tr("Interrupted run"),
                      tr("The record of a run cannot be read: who was sent the message is not "
                         "known from it. It stays where it is until it is deleted."),
                      file});
}

void Recovery::ask(const LeftRun &run, std::function<void()> onForgotten)
{
    const QString name = run.record.projectPath.isEmpty() ? tr("a project without a name")
                                                          : fileNameOf(run.record.projectPath);
    const bool canContinue = run.record.canContinue();
    Question question;
    question.topic = Topic::InterruptedRun;
    question.buttons = canContinue ? Buttons::ContinueOpenForget : Buttons::OpenForget;
    question.title = tr("Interrupted run");
    question.text = (!canContinue        ? tr("What became of a run of %1 has not been seen yet:")
                     : run.record.isOver ? tr("A run of %1 did not reach everybody:")
                                         : tr("A run of %1 was interrupted:"))
                        .arg(name) +
                    QLatin1String("\n\n") + summaryOf(run.record, m_form.language()) +
                    QLatin1String(".\n\n");
    if (run.record.isDamaged) {
        question.text += tr("The record is damaged: of whom it does not tell counts as in doubt.") +
                         QLatin1String("\n\n");
    }
    if (canContinue) {
        question.text += tr("\"Continue\" shows the run paused where it stood: it goes on with "
                            "Resume, and who is in doubt is left out.") +
                         u'\n';
    }
    question.text += tr("\"Open as it is\" shows what became of everybody, without a run.\n"
                        "\"Forget\" throws this record away.");
    const auto stands = [this, project = m_form.situation().project] {
        return m_form.situation().project == project && m_form.isEnabled(Control::cmdApri);
    };
    m_prompts.ask(question, stands, [this, run, then = std::move(onForgotten)](Answer answer) {
        if (answer == Answer::Cancel)
            return;
        // It may be this window's own run: its message was settled while the box was open, or the
        // project was saved.
        LeftRun now = run;
        const auto record = m_journal.read(run.file);
        now.record = record.value_or(run.record);
        if (answer == Answer::Forget)
            forget(run);
        if (answer == Answer::Forget || !record)
            then();
        else if (answer == Answer::Continue)
            continueRun(now);
        else
            openAsItIs(now);
    });
}

QString Recovery::summaryOf(const RunRecord &record, Language language)
{
    return TotalsText(language).whole(record.totals());
}

void Recovery::continueRun(const LeftRun &run)
{
    show(run, run.record.project);
}

void Recovery::openAsItIs(const LeftRun &run)
{
    ProjectData project = run.record.project;
    project.paused = false;
    // That row belongs to the run alone.
    if (run.record.hasControlRow())
        project.recipients.pop_back();
    show(run, project);
}

void Recovery::show(const LeftRun &run, const ProjectData &project)
{
    m_journal.reserve(run.projectLock);
    m_commands.show(project, run.record.projectPath);
    m_journal.adopt(run.file, run.lock, !project.paused);
}

void Recovery::forget(const LeftRun &run)
{
    m_journal.forget(run.file);
}
