#include "cli/SendCommand.h"

#include "recipients/TotalsText.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace {

QString jsonLine(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

SendCommand::SendCommand(const SendOptions &options, const CliSurroundings &from)
    : m_options(options),
      m_output(from.output),
      m_prompts(from.output, options.yes),
      m_AppLog(from.programFolder, from.clock, from.formats, from.codePage),
      m_workspace(from.forWorkspace(m_prompts, m_AppLog)),
      m_journal(from.forJournal(m_workspace, m_prompts, m_AppLog)),
      m_recovery(m_journal, m_workspace.projectCommands, m_workspace.form, m_prompts),
      m_reports(m_workspace.form, m_workspace.recipients, from.clock, m_prompts, m_AppLog)
{
    const SendingEngine &engine = m_workspace.engine;
    connect(&engine, &SendingEngine::rowDone, this, &SendCommand::showRow);
    connect(&engine, &SendingEngine::runEnded, this, [this] { endRun(Ending::Over); });
    connect(&engine, &SendingEngine::runFailed, this, [this] { endRun(Ending::Failed); });
    connect(&engine, &SendingEngine::runHalted, this, [this] { endRun(Ending::Halted); });
    connect(&m_workspace.form, &Form::changed, this, [this](Control control) {
        if (control == Control::lblTimer || control == Control::lblTrascorso)
            showProgress();
    });
}

SendCommand::~SendCommand()
{
    m_workspace.bodies.emptyWorkingFolder();
}

void SendCommand::start()
{
    if (const auto left = m_recovery.leftRunOf(m_options.project)) {
        if (left->holder) {
            m_journal.sayHeld(*left->holder);
            finish(ExitCode::Refused);
            return;
        }
        if (!m_options.again) {
            startAfter(*left);
            return;
        }
        m_journal.supersede(left->file);
    }
    switch (m_workspace.projectCommands.open(m_options.project)) {
    case LoadOutcome::Refused:
    case LoadOutcome::LoadedInPart:
        finish(ExitCode::Refused);
        return;
    case LoadOutcome::Loaded:
        if (m_options.goOn) {
            m_output.message(QStringLiteral("There is no run to continue."));
            finish(ExitCode::Refused);
        } else {
            startStopped();
        }
        return;
    case LoadOutcome::LoadedPaused:
        if (m_options.again) {
            m_output.message(QStringLiteral(
                "This project was saved in a pause; --again does not go with it: open it and stop "
                "its run first, or send it without --again to go on where it stands."));
            finish(ExitCode::Refused);
        } else {
            resume();
        }
        return;
    }
}

// The project's file knows nothing of such a run: what became of it is written there afterwards.
void SendCommand::startAfter(const LeftRun &left)
{
    const bool isUnfinished = left.record.canContinue();
    if (m_options.goOn && isUnfinished) {
        m_recovery.continueRun(left);
        resume();
    } else if (m_options.goOn) {
        m_recovery.openAsItIs(left);
        save([this] { conclude(Ending::Over); });
    } else if (m_options.rest) {
        m_recovery.openAsItIs(left);
        m_isWrittenBack = true;
        startStopped();
    } else {
        m_output.message(
            (isUnfinished
                 ? QStringLiteral("A run of this project did not finish: %1.\n"
                                  "Say --continue to go on where it stood, without those in "
                                  "doubt; ")
                 : QStringLiteral("What became of a run of this project was not saved: %1.\n"
                                  "Say --continue to write it into the project; "))
                .arg(Recovery::summaryOf(left.record, Language::English)) +
            QStringLiteral("--rest to start anew with those who certainly do not have the "
                           "message; or --again to forget that run and send to everybody."));
        finish(ExitCode::Refused);
    }
}

void SendCommand::resume()
{
    m_isWrittenBack = true;
    m_workspace.engine.cmdPausa_Click();
    begun();
}

void SendCommand::startStopped()
{
    const auto &rows = m_workspace.recipients.rows();
    const auto done = std::count_if(rows.begin(), rows.end(), mayHaveTheMessage);
    if (done > 0 && !m_options.rest && !m_options.again) {
        m_output.message(QStringLiteral("%1 recipients of this project are marked \"Sent\" or "
                                        "\"Sending...\". Say --rest to leave them out, or --again "
                                        "to send to them again.")
                             .arg(done));
        finish(ExitCode::Refused);
        return;
    }
    if (m_options.rest && !leaveOutThoseSent()) {
        m_output.message(QStringLiteral("No recipient is left to send to."));
        if (m_isWrittenBack)
            save([this] { finish(m_unsaved ? ExitCode::SessionError : ExitCode::Success); });
        else
            finish(ExitCode::Success);
        return;
    }
    m_workspace.engine.cmdAvvio_Click();
    m_prompts.whenQuiet([this] { begun(); });
}

// Whether any checked row is left.
bool SendCommand::leaveOutThoseSent()
{
    RecipientList &list = m_workspace.recipients;
    std::vector<int> done;
    for (int position = 1; position <= list.count(); ++position) {
        if (mayHaveTheMessage(list.at(position)))
            done.push_back(position);
    }
    m_workspace.recipientCommands.cmdUncheckAll_Click(done);
    return list.checkedFrom(1) > 0;
}

void SendCommand::begun()
{
    if (hasEnded())
        return;
    const RunState state = m_workspace.form.runState();
    if (state == RunState::Idle || state == RunState::Paused) {
        finish(ExitCode::Refused);
        return;
    }
    m_running = true;
    m_total = m_workspace.recipients.checkedFrom(m_workspace.engine.nextRecipientIndex());
    showProgress();
}

void SendCommand::showRow(int position)
{
    const Recipient &row = m_workspace.recipients.at(position);
    const RowState state = stateOf(row);
    m_done += state == RowState::NotSent ? 0 : 1;
    m_someRefused = m_someRefused || state == RowState::Error;
    if (m_options.json) {
        m_output.result(jsonLine({{QStringLiteral("row"), row.number},
                                  {QStringLiteral("name"), row.name},
                                  {QStringLiteral("address"), row.address},
                                  {QStringLiteral("state"), row.state},
                                  {QStringLiteral("code"), row.attempt.reply.code},
                                  {QStringLiteral("enhanced"), row.attempt.reply.enhanced},
                                  {QStringLiteral("reply"), row.attempt.reply.text}}));
    } else {
        constexpr int NumberWidth = 6;
        constexpr int StateWidth = 8;
        m_output.result(row.number.rightJustified(NumberWidth) + QLatin1String("  ") +
                        row.state.leftJustified(StateWidth) + QLatin1String("  ") + row.name +
                        QLatin1String(" <") + row.address + QLatin1String(">  ") +
                        row.attempt.reply.toText());
    }
    if (m_output.progressIsDue())
        showProgress();
}

void SendCommand::showProgress()
{
    const Form &form = m_workspace.form;
    if (!m_running)
        return;
    m_output.showProgress(m_done, m_total,
                          QStringLiteral("%1  total time %2, remaining %3")
                              .arg(form.text(Control::lblTimer), form.text(Control::lblTrascorso),
                                   form.text(Control::lblRimanente)));
}

void SendCommand::endRun(Ending ending)
{
    if (!m_running || hasEnded())
        return;
    m_running = false;
    const auto &rows = m_workspace.recipients.rows();
    const bool failed = ending == Ending::Failed;
    // Who broke off in the middle must not begin at the first recipient again.
    const bool anyHandedOver = std::any_of(rows.begin(), rows.end(), mayHaveTheMessage);
    // A run that reached nobody knows less than the project does of whom an earlier one reached.
    const bool anyReached = anyHandedOver || std::any_of(rows.begin(), rows.end(), isRefused);
    const bool isChanged = m_isWrittenBack || m_interrupted || ending == Ending::Halted ||
                           (failed && anyHandedOver) || (m_options.save && (anyReached || !failed));
    // What an interruption saved is the better record of a failure: it can go on.
    if (isChanged && !(failed && m_interrupted))
        save([this, ending] { conclude(ending); });
    else
        conclude(ending);
}

void SendCommand::save(std::function<void()> then)
{
    m_workspace.projectFile.SaveProject(m_options.project,
                                        [this, then = std::move(then)](bool saved) {
                                            m_unsaved = !saved;
                                            then();
                                        });
}

void SendCommand::conclude(Ending ending)
{
    ExitCode code = m_unsaved ? ExitCode::SessionError : codeOf(ending);
    const bool reported = !m_options.report || writeReport();
    if (!reported && code != ExitCode::Interrupted)
        code = ExitCode::SessionError;
    nameThoseInDoubt();
    summarize(ending, code);
    // Of a result that did not come where it was wanted, the run's record alone is left.
    if (!m_unsaved && reported) {
        m_output.flush();
        m_journal.rowsSeen();
    }
    finish(code);
}

ExitCode SendCommand::codeOf(Ending ending) const
{
    switch (ending) {
    case Ending::Over:
        break;
    case Ending::Failed:
    case Ending::Halted:
        return ExitCode::SessionError;
    case Ending::Interrupted:
        return ExitCode::Interrupted;
    }
    // Also the copy for the control address counts here.
    const Totals totals = totalsOfProject();
    return totals.sent == totals.rows && !m_someRefused ? ExitCode::Success : ExitCode::SomeRefused;
}

// Of all its rows, also of those before a pause; but not of the copy for the control address, whose
// row is there only while a run is.
Totals SendCommand::totalsOfProject() const
{
    std::vector<Recipient> rows = m_workspace.recipients.rows();
    std::erase_if(rows, [control = m_workspace.engine.controlRow()](const Recipient &row) {
        return row.id == control;
    });
    Totals totals = totalsOfMeant(rows);
    // Who was passed over and is checked now does not have the message either.
    totals.waiting += std::exchange(totals.notSent, 0);
    return totals;
}

bool SendCommand::writeReport()
{
    const auto written = m_reports.write(*m_options.report);
    if (!written)
        m_output.message(written.error().toText());
    return written.has_value();
}

// Also who is in flight: nobody waits for that answer any more.
void SendCommand::nameThoseInDoubt()
{
    for (const Recipient &row : m_workspace.recipients.rows()) {
        if (stateOf(row) == RowState::Sending) {
            m_output.message(
                QStringLiteral("In doubt: %1  %2 <%3>").arg(row.number, row.name, row.address));
        }
    }
}

void SendCommand::interrupt()
{
    if (hasEnded())
        return;
    if (!m_running) {
        finish(ExitCode::Interrupted);
        return;
    }
    if (m_interrupted) {
        m_workspace.projectFile.finishWaitingSave();
        conclude(Ending::Interrupted);
        return;
    }
    m_interrupted = true;
    m_output.message(QStringLiteral("Pausing after the message in flight; Ctrl-C again ends at "
                                    "once."));
    m_workspace.engine.cmdPausa_Click();
    save([this] {
        // The message was perhaps the last one: the event that ends the run comes first.
        m_prompts.whenQuiet([this] {
            if (!hasEnded())
                conclude(Ending::Interrupted);
        });
    });
}

void SendCommand::summarize(Ending ending, ExitCode code)
{
    const Totals totals = totalsOfProject();
    if (m_options.json) {
        m_output.result(jsonLine({{QStringLiteral("total"), totals.rows},
                                  {QStringLiteral("sent"), totals.sent},
                                  {QStringLiteral("refused"), totals.refused},
                                  {QStringLiteral("inDoubt"), totals.inDoubt},
                                  {QStringLiteral("left"), totals.waiting},
                                  {QStringLiteral("exit"), static_cast<int>(code)}}));
        return;
    }
    QString line = TotalsText(Language::English).whole(totals);
    if (ending == Ending::Failed)
        line += QStringLiteral("; the session failed");
    else if (ending != Ending::Over)
        line += m_unsaved
                    ? QStringLiteral("; paused")
                    : QStringLiteral("; paused, the project is saved: %1").arg(m_options.project);
    m_output.result(line);
}

void SendCommand::finish(ExitCode code)
{
    if (hasEnded())
        return;
    m_running = false;
    m_output.clearProgress();
    m_output.flush();
    end(code);
}
