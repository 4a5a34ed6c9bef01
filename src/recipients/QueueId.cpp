#include "recipients/QueueId.h"

#include <QRegularExpression>

#include <array>

QString queueIdOf(const ServerReply &reply)
{
    static const std::array patterns{
        QRegularExpression(QStringLiteral("\\bqueued as ([^\\s,;]+)"),
                           QRegularExpression::CaseInsensitiveOption), // Postfix, Exchange gateways
        QRegularExpression(QStringLiteral("\\bid=([^\\s,;]+)")),       // Exim
        QRegularExpression(QStringLiteral("\\bInternalId=([^\\s,;\\]]+)")),         // Exchange
        QRegularExpression(QStringLiteral("(\\S+) Message accepted for delivery")), // Sendmail
        QRegularExpression(QStringLiteral("^OK\\s+\\d+ (\\S+) - gsmtp"),
                           QRegularExpression::CaseInsensitiveOption), // Google
        QRegularExpression(QStringLiteral("\\bqp (\\d+)")),            // qmail
    };
    if (!reply.isPositive())
        return {};
    for (const QRegularExpression &pattern : patterns) {
        if (const auto match = pattern.match(reply.text); match.hasMatch())
            return match.captured(1);
    }
    return {};
}
