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
    if (!stale) {
        m_session.recipientsLeft -= static_cast<qint32>(message.rows.size());
        const quint32 duration = m_clock.tickCount() - m_session.messageStartTick;
        m_form.setTag(Control::lblRimanente, secondsText(duration, m_formats.decimalSign()));
    }
    const QString subject = stale ? message.subject : m_form.text(Control::txtOggetto);
    SettledMessage settlement;
    int lastPosition = 0;
    for (std::size_t place = 0; place < message.rows.size(); ++place) {
        const MessageInFlight::Row &row = message.rows[place];
        const ServerReply reply = replyOf(replies, place);
        // A server may take a message for some recipients of a group and refuse others.
        const bool rowSent = Sent && (reply.isEmpty() || reply.isPositive());
        const QString state = stateText(rowSent ? RowState::Sent : RowState::Error);
        settlement.rows.push_back({row.id, state});
        const int position = stale ? 0 : m_recipients.positionOf(row.id, row.position);
        if (position > 0) {
            m_recipients.setReply(position, reply);
            m_recipients.setState(position, state);
            lastPosition = position;
            Q_EMIT rowDone(position);
        }
        m_AppLog.WriteMessage(QLatin1String("Message '") + subject + QLatin1String("' to '") +
                              row.address + QLatin1String("' (") + row.number +
                              (rowSent ? QLatin1String(") sent.") : QLatin1String(") not sent.")));
    }
    if (lastPosition > 0) {
        m_session.nextRecipientIndex = positionAfter(m_recipients.rows(), lastPosition);
        m_searchFrom = lastPosition + 1;
    }
    settle(settlement);
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

// Marks the rows of the message that an error broke off.
SettledMessage SendingEngine::takeBrokenMessage()
{
    SettledMessage settlement = settledInDoubt();
    const MessageInFlight message = *std::exchange(m_inFlight, std::nullopt);
    const QList<ServerReply> replies = m_SMTP.lastReplies();
    // Rows that the server never took go back to "Waiting": they are certain not to have been
    // mailed. Those in doubt keep "Sending...".
    settlement.finished = m_SMTP.mayHaveBeenAccepted();
    for (std::size_t place = 0; place < message.rows.size(); ++place) {
        const ServerReply reply = replyOf(replies, place);
        const bool refused = !reply.isEmpty() && !reply.isPositive();
        if (refused)
            settlement.rows[place].state = stateText(RowState::Error);
        else if (!settlement.finished)
            settlement.rows[place].state = stateText(RowState::Waiting);
        const int position =
            isStale(message)
                ? 0
                : m_recipients.positionOf(message.rows[place].id, message.rows[place].position);
        if (position > 0) {
            m_recipients.setReply(position, reply);
            m_recipients.setState(position, settlement.rows[place].state);
            if (refused)
                Q_EMIT rowDone(position);
        }
    }
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
