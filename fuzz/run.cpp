// Records of runs: whatever is broken in one, nobody becomes sent by it, and nobody who has the
// message, or may have it, is sent it again.

#include "Fuzzing.h"
#include "journal/RunLines.h"
#include "journal/RunRecord.h"

#include <QList>

#include <array>
#include <map>

namespace {

using namespace Qt::StringLiterals;

/// What a record that is built begins with; one that is read as it stands begins with a digit.
constexpr char Built = '*';

const CodePage &western()
{
    static const CodePage codePage("windows-1252");
    return codePage;
}

std::optional<RunRecord> read(QByteArrayView content)
{
    return readRun(content, western(), Language::English);
}

void checkAny(const RunRecord &record)
{
    const Totals totals = record.totals();
    mustHold(totals.sent + totals.refused + totals.inDoubt + totals.waiting + totals.notSent ==
                 totals.rows,
             "every row counts once");
    const auto again = read(encodeRun(record, western()));
    mustHold(again.has_value(), "what was written is a record");
    mustHold(again->project.recipients.size() == record.project.recipients.size(),
             "no recipient is lost");
    mustHold(again->totals().sent == totals.sent, "who was sent to stays so");
}

/// A run as the program records one: it goes through the list in order, a message at a time, and
/// ends with the first that breaks off.
struct Run
{
    RunRecord start;
    QList<QByteArray> lines;         ///< the first is the head with the project
    std::map<int, Outcome> outcomes; ///< of the positions that a line tells of
};

const std::array Replies{ServerReply{},
                         ServerReply{SmtpVerb::Bdat, 250, u"2.0.0"_s, u"Ok: queued"_s},
                         ServerReply{SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"no\tsuch\\user\r\n"_s},
                         ServerReply{SmtpVerb::Content, 451, {}, u"später"_s}};

Recipient chosenRow(Choices &choices, int position, bool isPast)
{
    // The run comes to whoever is checked, whatever the state says.
    static const std::array ahead{u"Waiting"_s, u"Attesa"_s,   u"Not sent"_s,
                                  u"Error!"_s,  u"whatever"_s, QString()};
    static const std::array past{u"Sent"_s, u"Sending..."_s, u"Inviato"_s, u"Error!"_s,
                                 u"Not sent"_s};
    Recipient row;
    row.number = QString::number(position);
    row.name = u"Name"_s;
    row.address = u"a%1@example.net"_s.arg(position);
    row.state = isPast ? choices.oneOf(past) : choices.oneOf(ahead);
    row.checked = !choices.oneIn(4);
    if (choices.oneIn(3)) { // an earlier run's
        row.attempt.outcome = choices.oneOf(std::array{
            Outcome::None, Outcome::Sent, Outcome::Refused, Outcome::NotTaken, Outcome::InDoubt});
        row.attempt.tries = 1 + choices.upTo(2);
        row.attempt.identifier = u"old@pc"_s;
        row.attempt.reply = choices.oneOf(Replies);
    }
    return row;
}

RunRecord chosenStart(Choices &choices)
{
    static const std::array texts{u"News"_s, u"Hello, \"you\""_s, u" a, b"_s, u"日本"_s, QString()};
    RunRecord record;
    record.started = 1'795'248'000'000;
    record.projectPath = choices.oneOf(texts);
    ProjectData &project = record.project;
    project.paused = true;
    project.subject = choices.oneOf(texts);
    project.senderName = choices.oneOf(texts);
    project.attachments =
        choices.oneIn(2) ? QStringList{u"/a.pdf"_s, u"/b, c.pdf"_s} : QStringList();
    project.multiSend = choices.oneIn(2);
    project.messagesPerPacket = QString::number(1 + choices.upTo(3));
    const int count = 1 + choices.upTo(11);
    project.nextRecipientIndex = 1 + choices.upTo(count);
    for (int position = 1; position <= count; ++position)
        project.recipients.push_back(
            chosenRow(choices, position, position < project.nextRecipientIndex));
    return record;
}

/// Goes through the list of a run and writes its lines.
class Runner
{
public:
    Runner(Run &run, Choices &choices)
        : m_run(run),
          m_choices(choices),
          m_position(run.start.project.nextRecipientIndex),
          m_groupSize(run.start.project.multiSend ? run.start.project.messagesPerPacket.toInt() : 1)
    {}

    void go()
    {
        // It went on while a message was with the client.
        if (std::vector<int> group = nextGroup(); !group.empty() && m_choices.oneIn(4)) {
            for (const int position : group) {
                Recipient &row = rowAt(position);
                row.state = u"Sending..."_s;
                row.attempt = {Outcome::InFlight, {}, 1, 1, u"id@pc"_s};
                m_run.outcomes[position] = Outcome::InDoubt;
            }
            m_run.start.project.nextRecipientIndex = m_position;
            writeHead();
            m_goesOn = !m_choices.oneIn(4) && settle(group);
        } else {
            m_position = m_run.start.project.nextRecipientIndex;
            writeHead();
        }
        while (m_goesOn && !m_choices.isAtEnd())
            sendNext();
        if (m_choices.oneIn(2))
            m_run.lines += RunLines::over(3000);
    }

private:
    Recipient &rowAt(int position)
    {
        return m_run.start.project.recipients[static_cast<std::size_t>(position - 1)];
    }

    /// The checked rows that the next message goes to.
    std::vector<int> nextGroup()
    {
        const int count = static_cast<int>(m_run.start.project.recipients.size());
        std::vector<int> group;
        for (; m_position <= count && std::ssize(group) < m_groupSize; ++m_position) {
            if (rowAt(m_position).checked)
                group.push_back(m_position);
        }
        return group;
    }

    void writeHead()
    {
        const QByteArray content = encodeRun(m_run.start, western());
        const qsizetype project = content.indexOf('\n') + 1;
        const qsizetype behindLine = content.indexOf('\n', project) + 1;
        const QByteArray line = content.sliced(project, behindLine - project);
        const qsizetype end = behindLine + line.split('\t')[1].toLongLong() + 1;
        m_run.lines += content.first(end);
        for (qsizetype at = end; at < content.size(); at += m_run.lines.back().size())
            m_run.lines += content.sliced(at, content.indexOf('\n', at) + 1 - at);
    }

    void sendNext()
    {
        const std::vector<int> group = nextGroup();
        m_goesOn = !group.empty();
        if (!m_goesOn)
            return;
        m_run.lines += RunLines::send(1000, u"7"_s, group, u"id@pc"_s);
        for (const int position : group)
            m_run.outcomes[position] = Outcome::InDoubt;
        m_goesOn = !m_choices.oneIn(8) && settle(group);
    }

    /// Writes what became of a message; false when that ended the run.
    bool settle(const std::vector<int> &group)
    {
        const Outcome most = m_choices.oneOf(std::array{Outcome::Sent, Outcome::Sent, Outcome::Sent,
                                                        Outcome::NotTaken, Outcome::InDoubt});
        for (std::size_t first = 0; first < group.size();) {
            const Outcome outcome = m_choices.oneIn(3) ? Outcome::Refused : most;
            const std::size_t end =
                first + 1 +
                static_cast<std::size_t>(m_choices.upTo(std::ssize(group) - 1 - qsizetype(first)));
            const std::vector<int> positions(group.begin() + std::ptrdiff_t(first),
                                             group.begin() + std::ptrdiff_t(end));
            m_run.lines += RunLines::done(2000, positions, outcome, m_choices.oneOf(Replies));
            for (const int position : positions)
                m_run.outcomes[position] = outcome;
            first = end;
        }
        return most == Outcome::Sent;
    }

    Run &m_run;
    Choices &m_choices;
    int m_position;
    int m_groupSize;
    bool m_goesOn = true;
};

/// A record to which something was done.
struct Damage
{
    QList<QByteArray> lines;
    QByteArray unfinished; ///< the beginning of a line, at the end
    bool isHeadBroken = false;
    bool isRearranged = false; ///< whole lines are lost, doubled or in another order
    bool isForged = false;     ///< bytes that were put there make a line
    qsizetype lastJoined = 0;
};

bool isBroken(QByteArrayView line)
{
    return !RunLines::Reader(line).next().has_value();
}

/// Puts other bytes in the place of a line.
void replaceLine(Damage &damage, qsizetype place, QByteArrayView bytes)
{
    damage.lines[place] = bytes.toByteArray() + '\n';
    damage.isHeadBroken = damage.isHeadBroken || place == 0;
    damage.isForged = damage.isForged || !isBroken(damage.lines[place]);
}

void damageLine(Damage &damage, Choices &choices)
{
    const qsizetype last = damage.lines.size() - 1;
    // The head now and then: without it there is no record.
    const qsizetype place = last == 0 || choices.oneIn(16) ? 0 : 1 + choices.upTo(last - 1);
    QByteArray line = damage.lines[place].chopped(1);
    switch (choices.upTo(6)) {
    case 0:
        if (!line.isEmpty()) {
            const int at = choices.upTo(line.size() - 1);
            line[at] = char(line[at] ^ char(1 + choices.upTo(254)));
            replaceLine(damage, place, line);
        }
        break;
    case 1:
        if (!line.isEmpty())
            replaceLine(damage, place, line.first(choices.upTo(line.size() - 1)));
        break;
    case 2:
        replaceLine(damage, place, choices.bytes());
        break;
    case 3: // two become one, but no more: of how many a line was made cannot be seen
        if (place > damage.lastJoined && place < last) {
            replaceLine(damage, place, line + ' ' + damage.lines[place + 1].chopped(1));
            damage.lines.remove(place + 1);
            damage.lastJoined = place;
        }
        break;
    case 4:
        if (place > 0) {
            damage.lines.remove(place);
            damage.isRearranged = true;
        }
        break;
    case 5:
        if (place > 0) {
            damage.lines.insert(place, line + '\n');
            damage.isRearranged = true;
        }
        break;
    default:
        if (place > 0) {
            damage.lines.swapItemsAt(place, 1 + choices.upTo(last - 1));
            damage.isRearranged = true;
        }
    }
}

void checkWhole(const Run &run, const RunRecord &whole)
{
    mustHold(!whole.isDamaged, "a whole record is not damaged");
    for (const auto &[position, outcome] : run.outcomes) {
        const Recipient &row = whole.project.recipients[static_cast<std::size_t>(position - 1)];
        mustHold(stateOf(row) == stateAfter(outcome), "each row is what became of it");
    }
    checkAny(whole);
}

/// What the damaged record says of a row, beside the whole one.
void checkRow(const Run &run, const RunRecord &whole, const RunRecord &read, const Damage &damage,
              int position)
{
    const auto place = static_cast<std::size_t>(position - 1);
    const Recipient &before = run.start.project.recipients[place];
    const Recipient &known = whole.project.recipients[place];
    const Recipient &row = read.project.recipients[place];
    const auto told = run.outcomes.find(position);
    const bool isTold = told != run.outcomes.end();
    if (stateOf(row) == RowState::Sent)
        mustHold(stateOf(before) == RowState::Sent || (isTold && told->second == Outcome::Sent),
                 "nobody becomes sent");
    const int next = read.project.nextRecipientIndex;
    if (position >= run.start.project.nextRecipientIndex && position < next && row.checked)
        mustHold(stateOf(row) != RowState::Waiting, "whom the run has passed is accounted for");
    if (damage.isRearranged || !mayHaveTheMessage(known))
        return;
    mustHold(mayHaveTheMessage(row), "who may have the message is in doubt at least");
    mustHold(!isTold || position < next, "the run goes on behind who may have the message");
}

void check(const Run &run, const RunRecord &whole, const Damage &damage)
{
    const auto record = read(damage.lines.join() + damage.unfinished);
    mustHold(record.has_value() != damage.isHeadBroken, "a record is what has its head");
    if (!record)
        return;
    const bool isDamaged = std::any_of(damage.lines.begin() + 1, damage.lines.end(), isBroken);
    mustHold(record->isDamaged == isDamaged, "what is broken is known");
    if (!damage.isRearranged) {
        mustHold(whole.isOver || !record->isOver, "a run that goes on does not become over");
        mustHold(run.outcomes.empty() || record->hasBegun(), "it is known that somebody was sent");
    }
    for (int position = 1; position <= std::ssize(record->project.recipients); ++position)
        checkRow(run, whole, *record, damage, position);
    checkAny(*record);
}

void fuzzBuilt(QByteArrayView bytes)
{
    Choices choices(bytes);
    Run run;
    run.start = chosenStart(choices);
    Choices ofTheRun(choices.bytes());
    Runner(run, ofTheRun).go();
    const auto whole = read(run.lines.join());
    mustHold(whole.has_value(), "what was recorded is a record");
    checkWhole(run, *whole);

    Damage damage;
    damage.lines = run.lines;
    // The head has lines of its own.
    if (choices.oneIn(2) && run.lines.size() > 1) {
        const QByteArray &last = run.lines.back();
        damage.unfinished = last.first(choices.upTo(last.size() - 1));
    }
    while (!choices.isAtEnd())
        damageLine(damage, choices);
    if (!damage.isForged)
        check(run, *whole, damage);
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    if (bytes.startsWith(Built)) {
        fuzzBuilt(bytes.sliced(1));
    } else if (const auto record = read(bytes)) {
        checkAny(*record);
    }
}
