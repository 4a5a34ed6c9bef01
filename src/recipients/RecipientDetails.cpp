#include "recipients/RecipientDetails.h"

#include "recipients/AttemptText.h"
#include "recipients/QueueId.h"

QList<DetailLine> RecipientDetails::linesOf(const Recipient &row, const RegionalFormats &formats)
{
    QList<DetailLine> lines;
    const auto add = [&lines](const QString &label, const QString &text) {
        if (!text.isEmpty())
            lines.append({label, text});
    };
    const auto numberText = [](int number) {
        return number == 0 ? QString() : QString::number(number);
    };
    const Attempt &attempt = row.attempt;
    const ServerReply &reply = attempt.reply;
    add(tr("Number"), row.number);
    add(tr("Name"), row.name);
    add(tr("Address"), row.address);
    add(tr("State"), row.state);
    add(tr("Outcome"), AttemptText::outcome(row));
    add(tr("Server's reply"), reply.text);
    add(tr("Reply code"), numberText(reply.code));
    add(tr("Enhanced code"), reply.enhanced);
    add(tr("Reply to the command"), nameOf(reply.verb));
    if (attempt.time != 0) {
        const QDateTime moment = QDateTime::fromMSecsSinceEpoch(attempt.time);
        add(tr("Time"), formats.shortDate(moment) + u' ' + formats.longTime(moment));
    }
    add(tr("Tries"), numberText(attempt.tries));
    add(tr("Message identifier"), attempt.identifier);
    add(tr("Queue id at the server"), queueIdOf(reply));
    return lines;
}
