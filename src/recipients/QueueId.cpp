#include "recipients/QueueId.h"

#include <QRegularExpression>

#include <array>

namespace {

// The pattern with an id in the place of "%1": whole, and no longer than a person would copy. A
// full stop belongs to it when it goes on behind it.
QRegularExpression withId(const QString &pattern)
{
    static const QString Id =
        QStringLiteral("((?:%1|\\.(?=%1)){1,100})(?!%1|\\.%1)").arg(u"[0-9A-Za-z_:@+/=~-]");
    return QRegularExpression(pattern.arg(Id), QRegularExpression::CaseInsensitiveOption);
}

} // namespace

QString queueIdOf(const ServerReply &reply)
{
    static const std::array patterns{
        // Postfix and many others. A relay tells its own before that of the server behind it, which
        // keeps the message.
        withId(QStringLiteral(".*\\bqueued as <?%1")),
        withId(QStringLiteral("\\bqueued with id %1")),                    // Stalwart
        withId(QStringLiteral("\\bqueued \\(%1\\)$")),                     // Haraka
        withId(QStringLiteral("\\bInternalId=%1")),                        // Exchange
        withId(QStringLiteral("<%1> (?:\\[Hostname=|Queued mail )")),      // Outlook.com
        withId(QStringLiteral("\\bid=%1")),                                // Exim
        withId(QStringLiteral("^(?=\\S{8})%1 (?:message|mail) accepted")), // Sendmail, OpenSMTPD
        withId(QStringLiteral("\\s%1 - gsmtp$")),                          // Gmail
        withId(QStringLiteral("^ok \\d+ qp %1$")),                         // qmail
        withId(QStringLiteral("^ok\\.? (?=[0-9a-f.-]{24,}$)%1$")),         // Amazon SES, Courier
        withId(QStringLiteral("^(?:<[^>]*> )?(?=\\S{16})%1 saved$")),      // Dovecot
    };
    constexpr qsizetype Longest = 1000; // of the replies that say nothing but this
    if (!reply.isPositive() || reply.text.size() > Longest)
        return {};
    for (const QRegularExpression &pattern : patterns) {
        if (const auto match = pattern.match(reply.text); match.hasMatch())
            return match.captured(1);
    }
    return {};
}
