#include "RunModel.h"

namespace {

constexpr int Rows = 7;
constexpr int StoryLength = 40;
constexpr int StepsOfALife = 100;

} // namespace

RunModel::RunModel(quint32 seed) : m_random(seed)
{
    watch();
    m_journal.fillForm(Rows);
}

// A program that has just begun.
void RunModel::watch()
{
    m_journal.sync->sparesDisk = true;
    rig().prompts.random = &m_random;
    for (const char *name : {"one.svk", "two.svk"})
        rig().prompts.files.append(m_journal.path(QString::fromLatin1(name)));
    rig().prompts.onAnswer = [this](Topic topic, Answer answer) {
        if (topic == Topic::InterruptedRun)
            ++m_counts.recoveries[answer];
    };
    rig().smtp.onSend = [this] { onSend(); };
    rig().smtp.onConnect = [this] { m_roomInPacket = rig().w.form.text(Control::txtNMsg).toInt(); };
    QObject::connect(&rig().w.engine, &SendingEngine::runEnded, &rig().smtp,
                     [this] { onRunEnded(); });
}

int RunModel::upTo(int count)
{
    return std::uniform_int_distribution<int>(0, count - 1)(m_random);
}

void RunModel::say(const QString &what)
{
    m_story.append(QLatin1String(nameOf(rig().w.form.runState())) + QLatin1String(": ") + what);
    if (m_story.size() > StoryLength)
        m_story.removeFirst();
}

void RunModel::fail(const QString &what)
{
    if (m_failure.isEmpty())
        m_failure =
            what + QStringLiteral("\nthe last steps:\n  ") + m_story.join(QStringLiteral("\n  "));
}

void RunModel::step()
{
    if (oneIn(StepsOfALife)) {
        die();
    } else if (rig().prompts.hasOpenBox() && oneIn(2)) {
        say(QStringLiteral("a box is answered"));
        rig().prompts.answerOne();
    } else {
        switch (upTo(11)) {
        case 0:
        case 1:
        case 2:
            userDoesSomething();
            break;
        case 3:
        case 4:
            tick();
            break;
        case 5:
            say(QStringLiteral("the event loop turns"));
            rig().settle();
            break;
        case 6:
            diskDoesSomething();
            break;
        default:
            serverDoesSomething();
        }
    }
    noteNewRun();
    checkRows();
    keepTruth();
}

void RunModel::tick()
{
    say(QStringLiteral("tick"));
    rig().clock.advanceMilliseconds(1000);
    rig().Timer.tick();
    rig().Timer2.tick();
}

void RunModel::userDoesSomething()
{
    const bool idle = rig().w.form.runState() == RunState::Idle;
    if (idle && rig().w.recipients.count() == 0)
        m_journal.fillForm(Rows);
    const int choice = upTo(20);
    if (choice < 2) {
        save();
    } else if (choice == 2) {
        say(QStringLiteral("open"));
        rig().w.projectCommands.cmdApri_Click();
    } else if (choice == 3 && oneIn(4)) {
        say(QStringLiteral("new"));
        rig().w.projectCommands.cmdNuovo_Click();
    } else if (choice == 4) {
        say(QStringLiteral("what became of the rows is seen"));
        m_journal.journal->rowsSeen();
    } else if (idle) {
        start();
    } else if (choice < 8) {
        say(QStringLiteral("stop"));
        rig().w.engine.cmdStop_Click();
    } else if (choice < 14) {
        say(QStringLiteral("pause or resume"));
        rig().w.engine.cmdPausa_Click();
    }
}

void RunModel::start()
{
    say(QStringLiteral("start"));
    // While a question of Start is open, the form is as it was when it was asked.
    if (!rig().prompts.hasOpenBox()) {
        Form &form = rig().w.form;
        form.setText(Control::txtNMsg, QString::number(1 + upTo(Rows)));
        form.setChecked(Control::chkMultiSend, oneIn(3));
        form.setText(Control::txtControl,
                     oneIn(2) ? QStringLiteral("control@example.org") : QString());
        rig().w.recipientCommands.lstDestinatari_ItemCheck(1 + upTo(rig().w.recipients.count()),
                                                           !oneIn(4));
    }
    rig().w.engine.cmdAvvio_Click();
}

// Save as the button does it, and in a run as the question at closing does.
void RunModel::save()
{
    const QString path = rig().prompts.files.at(upTo(2));
    rig().w.engine.turns().take([this, path] {
        say(QStringLiteral("save"));
        const bool waits =
            rig().w.form.runState() == RunState::Paused && rig().w.engine.messageInFlight();
        m_counts.savesInFlight += waits ? 1 : 0;
        rig().w.projectFile.SaveProject(path, [this, path](bool saved) {
            if (!saved)
                fail(QStringLiteral("a save failed"));
            m_files[path] = {rig().contentOf(path), m_truth.handed};
        });
    });
}

void RunModel::serverDoesSomething()
{
    if (rig().smtp.messageInFlight()) {
        // A message takes its time, in which the user does this and that.
        if (oneIn(3))
            finishMessage();
        else if (oneIn(20))
            breakSession(oneIn(2));
    } else if (rig().smtp.readyIsDue()) {
        if (oneIn(25)) {
            breakSession(false);
        } else {
            say(QStringLiteral("ready"));
            rig().smtp.raiseReady();
        }
    }
}

void RunModel::finishMessage()
{
    QList<ServerReply> replies;
    bool taken = false;
    const QStringList addresses = std::exchange(m_inFlight, {});
    m_counts.staleResults += isStale() ? 1 : 0;
    for (const QString &address : addresses) {
        const bool accepted = !oneIn(5);
        replies.append({SmtpVerb::Rcpt, accepted ? 250 : 550, {}, {}});
        taken = taken || accepted;
        if (!isStale())
            m_truth.settled[address] = accepted ? RowState::Sent : RowState::Error;
        if (accepted)
            forTruthsOfMessage([&](Truth &truth) { truth.accepted.insert(address); });
    }
    say(QStringLiteral("done: ") + addresses.join(u','));
    rig().smtp.raiseDone(taken, replies);
}

void RunModel::breakSession(bool mayHaveBeenAccepted)
{
    const QStringList addresses = std::exchange(m_inFlight, {});
    // A message that was certainly not taken may be sent again; perhaps its rows say so alone, and
    // perhaps its record does.
    for (const QString &address : addresses) {
        if (mayHaveBeenAccepted)
            continue;
        if (isStale() || m_truth.diskFailed)
            forTruthsOfMessage([&](Truth &truth) { truth.released.insert(address); });
        else
            m_truth.handed.remove(address);
    }
    say(QStringLiteral("the session breaks"));
    rig().smtp.raiseError(1, QStringLiteral("broken"), mayHaveBeenAccepted);
}

void RunModel::diskDoesSomething()
{
    if (m_journal.sync->jobs() == 0)
        return;
    m_journal.sync->start();
    if (oneIn(20)) {
        say(QStringLiteral("the disk fails"));
        ++m_counts.diskFailures;
        m_truth.diskFailed = true;
        m_journal.sync->finish(tl::unexpected(FileError{QStringLiteral("disk"), {}}));
    } else {
        say(QStringLiteral("the disk has caught up"));
        m_journal.sync->finish();
    }
}

// Whether the server took what was in flight nobody will tell.
void RunModel::die()
{
    say(QStringLiteral("the program dies"));
    ++m_counts.deaths[rig().w.form.runState()];
    m_counts.deathsInFlight += m_inFlight.isEmpty() ? 0 : 1;
    const qint64 now = rig().clock.microseconds();
    m_journal.die();
    rig().clock.advanceMicroseconds(now - rig().clock.microseconds());
    watch();
    m_inFlight.clear();
    m_seen = {};
    m_truth = {};
    m_truthRun = 0;
    if (oneIn(2)) {
        say(QStringLiteral("another one looks for runs"));
        m_journal.recovery->atStart();
    }
}

// A project that was saved over another one, of which a run was left behind, is not run.
void RunModel::resumeOrStop()
{
    rig().w.engine.cmdPausa_Click();
    if (rig().w.form.runState() == RunState::Paused)
        rig().w.engine.cmdStop_Click();
}

void RunModel::drain()
{
    constexpr int Limit = 500;
    for (int i = 0; i < Limit; ++i) {
        rig().settle();
        m_journal.flushDisk();
        if (rig().prompts.hasOpenBox())
            rig().prompts.answerOne();
        else if (rig().smtp.messageInFlight())
            finishMessage();
        else if (rig().smtp.readyIsDue())
            rig().smtp.raiseReady();
        else if (rig().w.form.runState() == RunState::Paused)
            resumeOrStop();
        else if (rig().w.form.runState() != RunState::Idle)
            rig().Timer.tick();
        else
            return;
        noteNewRun();
        checkRows();
        keepTruth();
    }
    fail(QStringLiteral("the run is stuck"));
}
