// What became of a message: its rows are marked, or the session failed and the run ends.

#include "sending/SendingEngine.h"

#include "sending/TimeTexts.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(runTrace, "sorvanta.run", QtCriticalMsg)

// The reply to the recipient of that place, when the client keeps replies.
ServerReply replyOf(const QList<ServerReply> &replies, std::size_t place)
{
    return replies.value(static_cast<qsizetype>(place));
}

} // namespace

// The end of its own run does not make a result stale: the message was sent all the same. A new run
// or another project does.
bool SendingEngine::isStale(const MessageInFlight &message) const
{
    return message.situation.project != m_form.situation().project ||
           message.situation.run != m_startedRun;
}

void SendingEngine::SMTP_MessageDone(bool Sent)
{
    if (!m_inFlight) {
        qCDebug(runTrace, "a result without a message: ignored");
        return;
    }
    const MessageInFlight message = *std::exchange(m_inFlight, std::nullopt);
    const bool stale = isStale(message);
    const QList<ServerReply> replies = m_SMTP.lastReplies();
    std::vector<RowResult> results;
    for (std::size_t place = 0; place < message.rows.size(); ++place) {
        const ServerReply reply = replyOf(replies, place);
        // A server may take a message for some recipients of a group and refuse others.
        const bool rowSent = Sent && (reply.isEmpty() || reply.isPositive());
        results.push_back({rowSent ? Outcome::Sent : Outcome::Refused, reply});
    }
    if (!stale) {
        m_session.recipientsLeft -= static_cast<qint32>(message.rows.size());
        const quint32 duration = m_clock.tickCount() - m_session.messageStartTick;
        m_form.setTag(Control::lblRimanente, secondsText(duration, m_formats.decimalSign()));
    }
    const SettledMessage settlement = mark(message, results);
    log(message, results);
    if (!stale) {
        const MessageInFlight::Row &last = message.rows.back();
        if (const int position = m_recipients.positionOf(last.id, last.position); position > 0) {
            m_session.nextRecipientIndex = positionAfter(m_recipients.rows(), position);
            m_searchFrom = position + 1;
        }
    }
    settle(settlement);
}

// Gives the message's rows what became of them, on the disk first. A stale result changes no row.
SettledMessage SendingEngine::mark(const MessageInFlight &message,
                                   const std::vector<RowResult> &results)
{
    m_recorder->settled(message, results);
    SettledMessage settlement;
    for (std::size_t place = 0; place < message.rows.size(); ++place) {
        const MessageInFlight::Row &row = message.rows[place];
        const RowResult &result = results[place];
        const QString state = stateText(stateAfter(result.outcome));
        settlement.rows.push_back({row.id, state});
        const int position = isStale(message) ? 0 : m_recipients.positionOf(row.id, row.position);
        if (position == 0)
            continue;
        const int tries = m_recipients.at(position).attempt.tries;
        m_recipients.setAttempt(position, {result.outcome, result.reply, m_clock.milliseconds(),
                                           tries, message.identifier});
        m_recipients.setState(position, state);
        if (result.outcome == Outcome::Sent || result.outcome == Outcome::Refused)
            Q_EMIT rowDone(position);
    }
    return settlement;
}

// A line for each row that was sent or refused; what broke off stands in no line of its own.
void SendingEngine::log(const MessageInFlight &message, const std::vector<RowResult> &results)
{
    const QString subject = isStale(message) ? message.subject : m_form.text(Control::txtOggetto);
    for (std::size_t place = 0; place < message.rows.size(); ++place) {
        const MessageInFlight::Row &row = message.rows[place];
        const Outcome outcome = results[place].outcome;
        if (outcome != Outcome::Sent && outcome != Outcome::Refused)
            continue;
        m_AppLog.WriteMessage(
            QLatin1String("Message '") + subject + QLatin1String("' to '") + row.address +
            QLatin1String("' (") + row.number +
            (outcome == Outcome::Sent ? QLatin1String(") sent.") : QLatin1String(") not sent.")));
    }
}

SettledMessage SendingEngine::settledInDoubt() const
{
    SettledMessage settlement;
    if (m_inFlight) {
        for (const MessageInFlight::Row &row : m_inFlight->rows)
            settlement.rows.push_back({row.id, stateText(RowState::Sending)});
    }
    return settlement;
}

// Marks the rows of the message that an error broke off. Rows that the server never took go back to
// "Waiting": they are certain not to have been mailed. Those in doubt keep "Sending...".
SettledMessage SendingEngine::takeBrokenMessage()
{
    const MessageInFlight message = *std::exchange(m_inFlight, std::nullopt);
    const QList<ServerReply> replies = m_SMTP.lastReplies();
    const bool inDoubt = m_SMTP.mayHaveBeenAccepted();
    std::vector<RowResult> results;
    for (std::size_t place = 0; place < message.rows.size(); ++place) {
        const ServerReply reply = replyOf(replies, place);
        if (!reply.isEmpty() && !reply.isPositive())
            results.push_back({Outcome::Refused, reply});
        else
            results.push_back({inDoubt ? Outcome::InDoubt : Outcome::NotTaken, reply});
    }
    SettledMessage settlement = mark(message, results);
    log(message, results);
    settlement.finished = inDoubt;
    return settlement;
}

void SendingEngine::SMTP_SmtpError(qint32 Number, const QString &Description)
{
    const bool endsMessage = m_inFlight.has_value();
    const bool ofThisRun =
        endsMessage ? m_inFlight->situation == m_form.situation() : m_sessionIsOfThisRun;
    if (!endsMessage && !ofThisRun) {
        qCDebug(runTrace, "an error of a session of no present run: ignored");
        return;
    }
    const auto settlement =
        endsMessage ? std::optional<SettledMessage>(takeBrokenMessage()) : std::nullopt;
    // There is no blank before "(" and none behind "Error": both are meant so.
    m_AppLog.WriteMessage(QLatin1String("SMTP Error: ") + Description + u'(' +
                          QString::number(Number) + u')');
    // This box is English in both windows.
    m_prompts.notice(
        {Icon::Critical, QStringLiteral("Error"), QLatin1String("SMTP: Error") + Description});
    if (ofThisRun) {
        // A connection that waits behind the failed one has nothing to connect for any more.
        m_SMTP.Disconnect();
        StopSending();
    }
    if (settlement)
        settle(*settlement);
    if (ofThisRun)
        Q_EMIT runFailed(Number, Description);
}
