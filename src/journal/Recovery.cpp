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
    auto lock = m_journal.lockOf(file);
    if (!lock && lock.error().isHeld)
        return std::nullopt;
    const auto content = readWholeFile(file);
    if (!content)
        return std::nullopt;
    auto record = readRun(*content, m_journal.codePage(), m_form.language());
    if (!record)
        return std::nullopt;
    // Where no lock can be made, nothing can be recorded either: it can be looked at.
    return LeftRun{file, std::move(*record), lock ? *lock : nullptr};
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
        const auto run = take(files.takeFirst());
        if (run && run->record.hasBegun()) {
            ask(*run, [this, files] { askAboutNext(files); });
            return;
        }
    }
}

void Recovery::beforeOpening(const QString &path, std::function<void()> openFile)
{
    if (const auto run = leftRunOf(path))
        ask(*run, std::move(openFile));
    else
        openFile();
}

void Recovery::ask(const LeftRun &run, std::function<void()> onForgotten)
{
    const QString name = run.record.projectPath.isEmpty() ? tr("a project without a name")
                                                          : fileNameOf(run.record.projectPath);
    const bool canContinue = run.record.totals().waiting > 0;
    Question question;
    question.topic = Topic::InterruptedRun;
    question.buttons = canContinue ? Buttons::ContinueOpenForget : Buttons::OpenForget;
    question.title = tr("Interrupted run");
    question.text = (canContinue ? tr("A run of %1 was interrupted:")
                                 : tr("What became of a run of %1 has not been seen yet:"))
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
        return m_form.situation().project == project;
    };
    m_prompts.ask(question, stands, [this, run, then = std::move(onForgotten)](Answer answer) {
        if (answer == Answer::Continue) {
            continueRun(run);
        } else if (answer == Answer::OpenAsItIs) {
            openAsItIs(run);
        } else if (answer == Answer::Forget) {
            forget(run);
            then();
        }
    });
}

QString Recovery::summaryOf(const RunRecord &record, Language language)
{
    return TotalsText(language).whole(record.totals());
}

void Recovery::continueRun(const LeftRun &run)
{
    m_commands.show(run.record.project, run.record.projectPath);
    m_journal.adopt(run.file, run.lock, false);
}

void Recovery::openAsItIs(const LeftRun &run)
{
    ProjectData project = run.record.project;
    project.paused = false;
    // The row that the run appended for the control address belongs to the run alone.
    const bool hasControlRow = !project.controlAddress.isEmpty() && !project.recipients.empty() &&
                               project.recipients.back().address == project.controlAddress;
    if (hasControlRow)
        project.recipients.pop_back();
    m_commands.show(project, run.record.projectPath);
    m_journal.adopt(run.file, run.lock, true);
}

void Recovery::forget(const LeftRun &run)
{
    m_journal.forget(run.file);
}
