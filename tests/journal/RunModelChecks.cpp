// What is true of each run, and whether the program keeps to it.

#include "RunModel.h"

#include "recipients/Totals.h"

void RunModel::onSend()
{
    ++m_counts.messages;
    noteNewRun();
    if (rig().w.form.runState() != RunState::Sending)
        fail(QStringLiteral("a message was handed over although the run does not send"));
    if (!m_inFlight.isEmpty())
        fail(QStringLiteral("two messages are in flight"));
    m_inFlight = rig().smtp.RecipientAddress.split(u',');
    m_inFlightRun = m_truthRun;
    m_inFlightRecord = m_journal.journal->file();
    m_roomInPacket -= static_cast<int>(m_inFlight.size());
    if (m_roomInPacket < 0)
        fail(QStringLiteral("the packet is larger than it may be"));
    for (const QString &address : std::as_const(m_inFlight)) {
        if (m_truth.handed.contains(address) && !m_truth.released.remove(address))
            fail(address + QStringLiteral(" was handed over twice in a run"));
        m_truth.handed.insert(address);
    }
    say(QStringLiteral("handed over: ") + m_inFlight.join(u','));
}

void RunModel::onRunEnded()
{
    ++m_counts.runsEnded;
    m_counts.continuedToEnd += m_truth.wasContinued ? 1 : 0;
    for (const Recipient &row : rig().w.recipients.rows()) {
        const auto state = stateOfWord(row.state);
        const bool isInDoubt = state == RowState::Sending && m_truth.handed.contains(row.address);
        if (row.checked && state != RowState::Sent && state != RowState::Error && !isInDoubt)
            fail(QStringLiteral("the run ended, and %1 says %2").arg(row.address, row.state));
    }
}

// A run that started, or was opened, since the last look.
void RunModel::noteNewRun()
{
    const Situation now = rig().w.form.situation();
    const RunState state = rig().w.form.runState();
    const bool began = now.run != m_seen.run && state != RunState::Idle;
    if (now.project != m_seen.project) {
        const auto record = m_records.constFind(m_journal.journal->file());
        if (record != m_records.constEnd())
            noteRecord(*record);
        else
            noteFile(state);
        m_truthRun = now.run;
    } else if (began) {
        m_truth = {};
        m_truthRun = now.run;
    }
    m_seen = now;
}

// A file opened paused continues a run: whoever that run was handed must not get it again.
void RunModel::noteFile(RunState runState)
{
    const QString path = rig().w.form.projectPath();
    const bool continues = runState == RunState::Paused && !path.isEmpty();
    m_truth = {};
    if (continues && m_files.value(path).content == rig().contentOf(path))
        m_truth.handed = m_files.value(path).handed;
    int position = 0;
    for (const Recipient &row : rig().w.recipients.rows()) {
        ++position;
        const auto state = stateOfWord(row.state);
        if (state == RowState::Sent)
            m_truth.accepted.insert(row.address);
        if (state == RowState::Sent || state == RowState::Error)
            m_truth.settled[row.address] = *state;
        if (continues && row.checked && position < rig().w.engine.nextRecipientIndex())
            m_truth.handed.insert(row.address);
    }
    m_counts.resumedFromFile += continues ? 1 : 0;
}

// A run that another program left behind: its rows say what that one knew.
void RunModel::noteRecord(const Truth &truth)
{
    m_truth = truth;
    m_truth.wasContinued = rig().w.form.runState() == RunState::Paused;
    const auto &rows = rig().w.recipients.rows();
    for (const Recipient &row : rows) {
        const QString &address = row.address;
        const auto state = stateOfWord(row.state);
        const bool isInDoubt = state == RowState::Sending;
        m_counts.inDoubt += isInDoubt ? 1 : 0;
        const auto settled = truth.settled.constFind(address);
        if (settled != truth.settled.constEnd() && state != *settled &&
            !(isInDoubt && truth.diskFailed))
            fail(QStringLiteral("%1 says %2, but the client had said what became of it")
                     .arg(address, row.state));
        // It would be handed over again.
        const bool isReleased = truth.released.contains(address);
        if (state == RowState::Waiting && truth.handed.contains(address) && !isReleased)
            fail(address + QStringLiteral(" says Waiting, but was in flight"));
    }
    const Totals totals = totalsOf(rows);
    if (totals.rows != rig().w.recipients.count() ||
        totals.sent + totals.refused + totals.inDoubt + totals.waiting + totals.notSent !=
            totals.rows)
        fail(QStringLiteral("the totals do not add up"));
}

// What is true of the present run is true of its record.
void RunModel::keepTruth()
{
    const QString file = m_journal.journal->file();
    if (!file.isEmpty())
        m_records[file] = m_truth;
    m_records.removeIf([](auto record) { return !QFile::exists(record.key()); });
}

void RunModel::forTruthsOfMessage(const std::function<void(Truth &)> &change)
{
    if (m_records.contains(m_inFlightRecord))
        change(m_records[m_inFlightRecord]);
    if (!isStale() || m_journal.journal->file() == m_inFlightRecord)
        change(m_truth);
}

void RunModel::checkRows()
{
    const int cursor = rig().w.engine.nextRecipientIndex();
    const bool runs = rig().w.form.runState() != RunState::Idle;
    int position = 0;
    for (const Recipient &row : rig().w.recipients.rows()) {
        ++position;
        const auto state = stateOfWord(row.state);
        if (state == RowState::Sent && !m_truth.accepted.contains(row.address))
            fail(row.address + QStringLiteral(" says Sent, and the server never took it"));
        if (!runs || !row.checked)
            continue;
        // In a run every checked row is accounted for: finished before the cursor, waiting behind.
        const bool finished = state == RowState::Sent || state == RowState::Error ||
                              (state == RowState::Sending && m_truth.handed.contains(row.address));
        const bool inFlight = state == RowState::Sending && m_inFlight.contains(row.address);
        if (position < cursor ? !finished : state != RowState::Waiting && !inFlight) {
            fail(QStringLiteral("row %1 (%2) says %3 with the cursor at %4; all: %5")
                     .arg(position)
                     .arg(row.address, row.state)
                     .arg(cursor)
                     .arg(rig().states().join(u' ')));
        }
    }
}
