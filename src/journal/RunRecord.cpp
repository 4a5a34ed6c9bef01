#include "journal/RunRecord.h"

#include "base/InputFields.h"
#include "base/Numbers.h"
#include "journal/RunLines.h"
#include "sending/SendSession.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <utility>

namespace {

const QLatin1String AttachmentField("attachment");

// The texts of a project that its file format reads up to a comma.
struct TextField
{
    const char *name;
    QString ProjectData::*text;
};

constexpr std::array TextFields{
    TextField{"elapsed", &ProjectData::elapsed},
    TextField{"server", &ProjectData::server},
    TextField{"senderName", &ProjectData::senderName},
    TextField{"senderAddress", &ProjectData::senderAddress},
    TextField{"controlAddress", &ProjectData::controlAddress},
    TextField{"textPath", &ProjectData::textPath},
    TextField{"htmlPath", &ProjectData::htmlPath},
    TextField{"subject", &ProjectData::subject},
    TextField{"recipientsPath", &ProjectData::recipientsPath},
    TextField{"messagesPerPacket", &ProjectData::messagesPerPacket},
    TextField{"delayMinutes", &ProjectData::delayMinutes},
};

bool survivesInFile(const QString &text)
{
    const QString line = text + QLatin1String("\r\n");
    InputFields fields(line);
    return fields.field() == text && fields.atEnd();
}

bool isHead(const RunLines::Line &line)
{
    return line.kind == QLatin1String("run") && line.fields.value(0) == u"1";
}

bool saysHowFarTheRunCame(const RunLines::Line &line)
{
    return line.kind == QLatin1String("send") || line.kind == QLatin1String("done");
}

// Takes out of the project what would come back from its file as something else; returns it as
// lines of their own.
QByteArray takeFragile(ProjectData &project)
{
    QByteArray lines;
    for (const TextField &field : TextFields) {
        QString &text = project.*field.text;
        if (!survivesInFile(text))
            lines += RunLines::field(QLatin1String(field.name), std::exchange(text, QString()));
    }
    if (!std::all_of(project.attachments.begin(), project.attachments.end(), survivesInFile)) {
        for (const QString &path : std::as_const(project.attachments))
            lines += RunLines::field(AttachmentField, path);
        project.attachments.clear();
    }
    return lines;
}

/// Brings a project up to date, line by line.
class Replay
{
public:
    Replay(RunRecord &record, Language language)
        : m_record(record),
          m_project(record.project),
          m_language(language),
          m_firstRow(std::max(1, record.project.nextRecipientIndex)),
          m_isTold(record.project.recipients.size())
    {}

    void take(const RunLines::Line &line)
    {
        const QStringList &fields = line.fields;
        if (line.kind == QLatin1String("field"))
            takeField(fields);
        else if (line.kind == QLatin1String("try"))
            takeAttempt(fields);
        else if (line.kind == QLatin1String("send"))
            takeSend(fields);
        else if (line.kind == QLatin1String("done"))
            takeDone(fields);
        else if (line.kind == QLatin1String("over"))
            m_record.isOver = true;
    }

    /// The rows that no line accounts for. A run goes through the list in order: what lies before
    /// the place where it goes on was passed over, or else was handed over in a line that is lost.
    /// Each broken line behind all that say how far the run came may be a message's.
    void finish(int brokenLinesAtEnd)
    {
        for (int message = 0; message < brokenLinesAtEnd; ++message)
            doubtNextMessage();
        const int end = std::min(m_project.nextRecipientIndex - 1, count());
        for (int position = m_firstRow; position <= end; ++position) {
            Recipient &row = rowAt(position);
            const bool isWaiting = stateOf(row) == RowState::Waiting;
            if (row.checked && !mayHaveTheMessage(row) && (isWaiting || !isTold(position)))
                set(row, Outcome::InDoubt);
            else if (isWaiting)
                row.state = stateWord(RowState::NotSent, m_language);
        }
    }

private:
    [[nodiscard]] int count() const { return static_cast<int>(m_project.recipients.size()); }
    [[nodiscard]] Recipient &rowAt(int position)
    {
        return m_project.recipients[static_cast<std::size_t>(position - 1)];
    }
    [[nodiscard]] std::vector<int> positions(const QString &field) const
    {
        return RunLines::positionsOf(field, count());
    }
    // A reference, to read and to write.
    [[nodiscard]] std::vector<bool>::reference isTold(int position)
    {
        return m_isTold[static_cast<std::size_t>(position - 1)];
    }
    void set(Recipient &row, Outcome outcome)
    {
        row.attempt.outcome = outcome;
        row.attempt.tries = std::max(1, row.attempt.tries); // the "send" may be lost
        row.state = stateWord(stateAfter(outcome), m_language);
    }

    void doubtNextMessage()
    {
        const int size = m_project.multiSend ? leadingNumber(m_project.messagesPerPacket) : 1;
        int taken = 0;
        int position = m_project.nextRecipientIndex;
        for (; position >= 1 && position <= count() && taken < size; ++position) {
            Recipient &row = rowAt(position);
            if (!row.checked || mayHaveTheMessage(row))
                continue;
            set(row, Outcome::InDoubt);
            ++taken;
        }
        m_project.nextRecipientIndex = position;
    }

    void takeField(const QStringList &fields)
    {
        if (fields.value(0) == AttachmentField)
            m_project.attachments.append(fields.value(1));
        for (const TextField &field : TextFields) {
            if (fields.value(0) == QLatin1String(field.name))
                m_project.*field.text = fields.value(1);
        }
    }

    // A message that was with the client when the run went on may have arrived; its "done" comes
    // further down, if anybody came to write it.
    void takeAttempt(const QStringList &fields)
    {
        for (const int position : positions(fields.value(0))) {
            Attempt &attempt = rowAt(position).attempt;
            attempt.outcome = RunLines::outcomeOf(fields.value(1));
            if (attempt.outcome == Outcome::InFlight)
                attempt.outcome = Outcome::InDoubt;
            attempt.time = fields.value(2).toLongLong();
            attempt.tries = std::clamp(leadingNumber(fields.value(3)), 0, MostTries);
            attempt.identifier = fields.value(4);
            attempt.reply = RunLines::replyOf(fields, 5);
        }
    }

    void takeSend(const QStringList &fields)
    {
        m_project.elapsed = fields.value(1);
        int last = 0;
        for (const int position : positions(fields.value(2))) {
            Recipient &row = rowAt(position);
            row.attempt = {
                {}, {}, fields.value(0).toLongLong(), row.attempt.tries + 1, fields.value(3)};
            set(row, Outcome::InDoubt);
            isTold(position) = true;
            last = position;
        }
        if (last > 0)
            m_project.nextRecipientIndex = positionAfter(m_project.recipients, last);
    }

    void takeDone(const QStringList &fields)
    {
        const Outcome outcome = RunLines::outcomeOf(fields.value(2));
        if (outcome == Outcome::None)
            return;
        const std::vector<int> rows = positions(fields.value(1));
        for (const int position : rows) {
            Recipient &row = rowAt(position);
            // Its "send" may be among the lines that are lost.
            if (!isTold(position) && position >= m_project.nextRecipientIndex)
                m_project.nextRecipientIndex = positionAfter(m_project.recipients, position);
            isTold(position) = true;
            row.attempt.time = fields.value(0).toLongLong();
            row.attempt.reply = RunLines::replyOf(fields, 3);
            set(row, outcome);
        }
        if (outcome == Outcome::NotTaken && !rows.empty())
            m_project.nextRecipientIndex = std::min(m_project.nextRecipientIndex, rows.front());
    }

    static constexpr int MostTries = 1'000'000;

    RunRecord &m_record;
    ProjectData &m_project;
    Language m_language;
    int m_firstRow;
    std::vector<bool> m_isTold; ///< by row: whether a line tells of a message of this run
};

} // namespace

bool RunRecord::hasBegun() const
{
    return isDamaged || std::any_of(project.recipients.begin(), project.recipients.end(),
                                    [](const Recipient &row) { return row.attempt.tries > 0; });
}

bool RunRecord::hasControlRow() const
{
    return !project.controlAddress.isEmpty() && !project.recipients.empty() &&
           project.recipients.back().address == project.controlAddress;
}

Totals RunRecord::totals() const
{
    Totals totals;
    const auto end = project.recipients.end() - (hasControlRow() ? 1 : 0);
    for (auto row = project.recipients.begin(); row != end; ++row) {
        if (row->checked)
            totals.count(*row);
    }
    return totals;
}

bool RunRecord::canContinue() const
{
    return totalsOfChecked(project.recipients).waiting > 0;
}

QByteArray encodeRun(RunRecord record, const CodePage &codePage)
{
    ProjectData &project = record.project;
    const QByteArray fragile = takeFragile(project);
    QByteArray content = RunLines::run(record.started, record.projectPath) +
                         RunLines::project(codePage.encode(encodeProject(project))) + fragile;
    int position = 0;
    for (const Recipient &row : project.recipients) {
        ++position;
        if (!row.attempt.isEmpty())
            content += RunLines::attempt(position, row.attempt);
    }
    return content;
}

std::optional<RunRecord> readRun(QByteArrayView content, const CodePage &codePage,
                                 Language language)
{
    RunLines::Reader reader(content);
    RunRecord record;
    const auto head = reader.next();
    if (!head || !isHead(*head))
        return std::nullopt;
    record.started = head->fields.value(1).toLongLong();
    record.projectPath = head->fields.value(2);
    const auto saved = reader.next();
    if (!saved || saved->kind != QLatin1String("project"))
        return std::nullopt;
    auto project = decodeProject(codePage.decode(saved->project));
    if (!project || project->cut)
        return std::nullopt;
    record.project = std::move(*project);
    Replay replay(record, language);
    int brokenBefore = 0;
    while (const auto line = reader.next()) {
        replay.take(*line);
        if (saysHowFarTheRunCame(*line))
            brokenBefore = reader.brokenLines();
    }
    replay.finish(reader.brokenLines() - brokenBefore);
    record.isDamaged = reader.brokenLines() > 0;
    return record;
}

QString projectOfRun(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return {};
    const QByteArray start = source.readLine();
    RunLines::Reader reader(start);
    const auto head = reader.next();
    return head && isHead(*head) ? head->fields.value(2) : QString();
}
