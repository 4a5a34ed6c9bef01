#include "preflight/ServerFindings.h"

#include "preflight/AddressRules.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Preflight)
};

} // namespace

QList<Finding> findingsAbout(const ServerReport &report, const QString &sender, qint64 messageSize)
{
    QList<Finding> findings;
    if (!report.failure.isEmpty()) {
        findings.append({Finding::Kind::Fails,
                         report.server.toText() + QLatin1String(": ") + report.failure,
                         Control::txtServer});
    }
    if (report.largestMessage > 0 && messageSize > report.largestMessage) {
        const QLocale locale;
        findings.append(
            {Finding::Kind::Fails,
             Texts::tr("The message has %1 bytes, and the server takes no more than %2.")
                 .arg(locale.toString(messageSize), locale.toString(report.largestMessage)),
             Control::lstAllegati});
    }
    const QString user = report.loginUser;
    if (user.contains(u'@') && addressKey(user) != addressKey(sender)) {
        findings.append({Finding::Kind::Advice,
                         Texts::tr("You log in as \"%1\" and send as \"%2\"; some servers refuse "
                                   "that.")
                             .arg(user, sender),
                         Control::txtEmailMittente});
    }
    return findings;
}
