#include "RunModel.h"

namespace {

constexpr int Rows = 7;
constexpr int StoryLength = 40;

} // namespace

RunModel::RunModel(quint32 seed) : m_random(seed)
{
    m_rig.prompts.random = &m_random;
    for (const char *name : {"one.svk", "two.svk"})
        m_rig.prompts.files.append(m_rig.folder.filePath(QString::fromLatin1(name)));
    m_rig.smtp.onSend = [this] { onSend(); };
    m_rig.smtp.onConnect = [this] { m_roomInPacket = m_rig.w.form.text(Control::txtNMsg).toInt(); };
    QObject::connect(&m_rig.w.engine, &SendingEngine::runEnded, &m_rig.smtp, [this] {
        ++m_runsEnded;
        for (const Recipient &row : m_rig.w.recipients.rows()) {
            if (row.checked && row.state != QStringLiteral("Sent") &&
                row.state != QStringLiteral("Error!") &&
                !(row.state == QStringLiteral("Sending...") && m_handed.contains(row.address)))
                fail(QStringLiteral("the run ended, and %1 says %2").arg(row.address, row.state));
        }
    });
    m_rig.fillForm(Rows);
}

int RunModel::upTo(int count)
{
    return std::uniform_int_distribution<int>(0, count - 1)(m_random);
}

void RunModel::say(const QString &what)
{
    m_story.append(QLatin1String(nameOf(m_rig.w.form.runState())) + QLatin1String(": ") + what);
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
    if (m_rig.prompts.hasOpenBox() && oneIn(2)) {
        say(QStringLiteral("a box is answered"));
        m_rig.prompts.answerOne();
    } else {
        switch (upTo(10)) {
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
            m_rig.settle();
            break;
        default:
            serverDoesSomething();
        }
    }
    noteNewRun();
    checkRows();
}

void RunModel::tick()
{
    say(QStringLiteral("tick"));
    m_rig.clock.advanceMilliseconds(1000);
    m_rig.Timer.tick();
    m_rig.Timer2.tick();
}

// A run that started, or was opened, since the last look.
void RunModel::noteNewRun()
{
    const Situation now = m_rig.w.form.situation();
    const RunState state = m_rig.w.form.runState();
    const bool began = now.run != m_seen.run && state != RunState::Idle;
    if (now.project != m_seen.project) {
        const QString path = m_rig.w.form.projectPath();
        m_handed.clear();
        m_accepted.clear();
        // A file opened paused continues a run: whoever that run was handed must not get it again.
        const bool continues = state == RunState::Paused && !path.isEmpty();
        if (continues && m_files.value(path).content == m_rig.contentOf(path))
            m_handed = m_files.value(path).handed;
        int position = 0;
        for (const Recipient &row : m_rig.w.recipients.rows()) {
            ++position;
            if (row.state == QStringLiteral("Sent"))
                m_accepted.insert(row.address);
            if (continues && row.checked && position < m_rig.w.engine.nextRecipientIndex())
                m_handed.insert(row.address);
        }
        m_resumedFromFile += continues ? 1 : 0;
        m_handedRun = now.run;
    } else if (began) {
        m_handed.clear();
        m_accepted.clear();
        m_handedRun = now.run;
    }
    m_seen = now;
}

void RunModel::userDoesSomething()
{
    const bool idle = m_rig.w.form.runState() == RunState::Idle;
    if (idle && m_rig.w.recipients.count() == 0)
        m_rig.fillForm(Rows);
    const int choice = upTo(20);
    if (choice < 2) {
        save();
    } else if (choice == 2) {
        say(QStringLiteral("open"));
        m_rig.w.projectCommands.cmdApri_Click();
    } else if (choice == 3 && oneIn(4)) {
        say(QStringLiteral("new"));
        m_rig.w.projectCommands.cmdNuovo_Click();
    } else if (idle) {
        start();
    } else if (choice < 8) {
        say(QStringLiteral("stop"));
        m_rig.w.engine.cmdStop_Click();
    } else if (choice < 14) {
        say(QStringLiteral("pause or resume"));
        m_rig.w.engine.cmdPausa_Click();
    }
}

void RunModel::start()
{
    say(QStringLiteral("start"));
    // While a question of Start is open, the form is as it was when it was asked.
    if (!m_rig.prompts.hasOpenBox()) {
        Form &form = m_rig.w.form;
        form.setText(Control::txtNMsg, QString::number(1 + upTo(Rows)));
        form.setChecked(Control::chkMultiSend, oneIn(3));
        form.setText(Control::txtControl,
                     oneIn(2) ? QStringLiteral("control@example.org") : QString());
        m_rig.w.recipientCommands.lstDestinatari_ItemCheck(1 + upTo(m_rig.w.recipients.count()),
                                                           !oneIn(4));
    }
    m_rig.w.engine.cmdAvvio_Click();
}

// Save as the button does it, and in a run as the question at closing does.
void RunModel::save()
{
    const QString path = m_rig.prompts.files.at(upTo(2));
    m_rig.w.engine.turns().take([this, path] {
        say(QStringLiteral("save"));
        const bool waits =
            m_rig.w.form.runState() == RunState::Paused && m_rig.w.engine.messageInFlight();
        m_savesInFlight += waits ? 1 : 0;
        m_rig.w.projectFile.SaveProject(path, [this, path](bool saved) {
            if (!saved)
                fail(QStringLiteral("a save failed"));
            m_files[path] = {m_rig.contentOf(path), m_handed};
        });
    });
}

void RunModel::onSend()
{
    ++m_messages;
    noteNewRun();
    if (m_rig.w.form.runState() != RunState::Sending)
        fail(QStringLiteral("a message was handed over although the run does not send"));
    if (!m_inFlight.isEmpty())
        fail(QStringLiteral("two messages are in flight"));
    m_inFlight = m_rig.smtp.RecipientAddress.split(u',');
    m_inFlightRun = m_handedRun;
    m_roomInPacket -= static_cast<int>(m_inFlight.size());
    if (m_roomInPacket < 0)
        fail(QStringLiteral("the packet is larger than it may be"));
    for (const QString &address : std::as_const(m_inFlight)) {
        if (m_handed.contains(address))
            fail(address + QStringLiteral(" was handed over twice in a run"));
        m_handed.insert(address);
    }
    say(QStringLiteral("handed over: ") + m_inFlight.join(u','));
}

void RunModel::serverDoesSomething()
{
    if (m_rig.smtp.messageInFlight()) {
        // A message takes its time, in which the user does this and that.
        if (oneIn(3))
            finishMessage();
        else if (oneIn(20))
            breakSession(oneIn(2));
    } else if (m_rig.smtp.readyIsDue()) {
        if (oneIn(25)) {
            breakSession(false);
        } else {
            say(QStringLiteral("ready"));
            m_rig.smtp.raiseReady();
        }
    }
}

void RunModel::finishMessage()
{
    QList<ServerReply> replies;
    bool taken = false;
    const QStringList addresses = std::exchange(m_inFlight, {});
    const bool stale = m_inFlightRun != m_handedRun;
    m_staleResults += stale ? 1 : 0;
    for (const QString &address : addresses) {
        const bool accepted = !oneIn(5);
        replies.append({SmtpVerb::Rcpt, accepted ? 250 : 550, {}, {}});
        taken = taken || accepted;
        if (accepted && !stale)
            m_accepted.insert(address);
    }
    say(QStringLiteral("done: ") + addresses.join(u','));
    m_rig.smtp.raiseDone(taken, replies);
}

void RunModel::breakSession(bool mayHaveBeenAccepted)
{
    const QStringList addresses = std::exchange(m_inFlight, {});
    // A message that was certainly not taken may be sent again.
    if (!mayHaveBeenAccepted && m_inFlightRun == m_handedRun) {
        for (const QString &address : addresses)
            m_handed.remove(address);
    }
    say(QStringLiteral("the session breaks"));
    m_rig.smtp.raiseError(1, QStringLiteral("broken"), mayHaveBeenAccepted);
}

void RunModel::checkRows()
{
    const int cursor = m_rig.w.engine.nextRecipientIndex();
    const bool runs = m_rig.w.form.runState() != RunState::Idle;
    int position = 0;
    for (const Recipient &row : m_rig.w.recipients.rows()) {
        ++position;
        const auto state = stateOfWord(row.state);
        if (state == RowState::Sent && !m_accepted.contains(row.address))
            fail(row.address + QStringLiteral(" says Sent, and the server never took it"));
        if (!runs || !row.checked)
            continue;
        // In a run every checked row is accounted for: finished before the cursor, waiting behind.
        const bool finished = state == RowState::Sent || state == RowState::Error ||
                              (state == RowState::Sending && m_handed.contains(row.address));
        const bool inFlight = state == RowState::Sending && m_inFlight.contains(row.address);
        if (position < cursor ? !finished : state != RowState::Waiting && !inFlight) {
            fail(QStringLiteral("row %1 (%2) says %3 with the cursor at %4; all: %5")
                     .arg(position)
                     .arg(row.address, row.state)
                     .arg(cursor)
                     .arg(m_rig.states().join(u' ')));
        }
    }
}

void RunModel::drain()
{
    constexpr int Limit = 500;
    for (int i = 0; i < Limit; ++i) {
        m_rig.settle();
        if (m_rig.prompts.hasOpenBox())
            m_rig.prompts.answerOne();
        else if (m_rig.smtp.messageInFlight())
            finishMessage();
        else if (m_rig.smtp.readyIsDue())
            m_rig.smtp.raiseReady();
        else if (m_rig.w.form.runState() == RunState::Paused)
            m_rig.w.engine.cmdPausa_Click();
        else if (m_rig.w.form.runState() != RunState::Idle)
            m_rig.Timer.tick();
        else
            return;
        noteNewRun();
        checkRows();
    }
    fail(QStringLiteral("the run is stuck"));
}
