#include "recipients/AttemptText.h"

QString AttemptText::inDoubt()
{
    return tr("in doubt: the connection ended before the server answered");
}

// Of a row whose state is about the next message.
QString AttemptText::before(Outcome outcome)
{
    switch (outcome) {
    case Outcome::None:
        break;
    case Outcome::Sent:
        return tr("before: sent");
    case Outcome::Refused:
        return tr("before: refused");
    case Outcome::NotTaken:
        return tr("before: not taken");
    case Outcome::InFlight: // nobody will say any more
    case Outcome::InDoubt:
        return tr("before: in doubt");
    }
    return {};
}

QString AttemptText::besideState(const Recipient &row)
{
    if (isInDoubt(row))
        return inDoubt();
    const Attempt &attempt = row.attempt;
    const RowState state = stateOf(row);
    if (state != RowState::Waiting && state != RowState::NotSent)
        return attempt.reply.toText();
    // What the server last said to others is no answer to a message that it never took.
    const bool isAnswered = attempt.outcome == Outcome::Sent || attempt.outcome == Outcome::Refused;
    const QString text = before(attempt.outcome);
    return isAnswered && !attempt.reply.isEmpty()
               ? text + QLatin1String(", ") + attempt.reply.toText()
               : text;
}

QString AttemptText::outcome(const Recipient &row)
{
    if (isInDoubt(row))
        return inDoubt();
    switch (stateOf(row)) {
    case RowState::Sending:
        return tr("on its way: the server has not answered yet");
    case RowState::Sent:
        return tr("sent: the server accepted the message");
    case RowState::Error:
        return isRefusedForNow(row) ? tr("refused for now: the server may accept it later")
                                    : tr("refused");
    case RowState::Waiting:
        return row.attempt.isEmpty() ? tr("nothing was sent yet") : before(row.attempt.outcome);
    case RowState::NotSent:
        break;
    }
    return row.attempt.isEmpty() ? tr("passed over: the row was not checked")
                                 : before(row.attempt.outcome);
}
