#include "smtp/ServerReportText.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ServerReport)
};

using Kind = ReportLine::Kind;
using Standing = ServerCertificate::Standing;

Kind kindOf(Standing standing)
{
    switch (standing) {
    case Standing::Verified:
        return Kind::Good;
    case Standing::Trusted:
    case Standing::Unchecked:
        return Kind::Note;
    case Standing::Refused:
        break;
    }
    return Kind::Bad;
}

QString consequence(Standing standing)
{
    switch (standing) {
    case Standing::Verified:
        return {};
    case Standing::Trusted:
        return Texts::tr("You trust this certificate.");
    case Standing::Unchecked:
        return Texts::tr("Nothing secret is said on this line, so it is used all the same.");
    case Standing::Refused:
        break;
    }
    return Texts::tr("Nothing is sent to this server.");
}

QList<ReportLine> linesOf(const ServerCertificate &certificate)
{
    const Kind kind = kindOf(certificate.standing);
    const QString label = Texts::tr("Certificate");
    QList<ReportLine> lines{{kind, label,
                             Texts::tr("%1, issued by %2, valid until %3")
                                 .arg(certificate.owner, certificate.issuer,
                                      certificate.validUntil.date().toString(Qt::ISODate))},
                            {kind, Texts::tr("Fingerprint"),
                             QLatin1String("SHA-256 ") + fingerprintText(certificate.fingerprint)}};
    if (certificate.standing != Standing::Verified) {
        lines.append({kind, label,
                      Texts::tr("It does not verify: %1. %2")
                          .arg(certificate.problem, consequence(certificate.standing))});
    }
    return lines;
}

// Nothing while it is not known yet.
std::optional<ReportLine> loginLine(const ServerReport &report)
{
    const QString label = Texts::tr("Login");
    const bool isReady = report.reached == ServerStep::Ready;
    switch (report.login) {
    case LoginState::Accepted:
        return ReportLine{
            Kind::Good, label,
            Texts::tr("accepted: %1 (%2)").arg(report.loginUser, report.loginMechanism)};
    case LoginState::Failed: {
        const QString user =
            report.loginUser.isEmpty() ? QString() : QLatin1String(": ") + report.loginUser;
        return ReportLine{Kind::Bad, label, Texts::tr("failed") + user};
    }
    case LoginState::NotOffered:
        if (isReady)
            return ReportLine{Kind::Note, label, Texts::tr("the server offers none")};
        break;
    case LoginState::NotWanted:
        if (isReady)
            return ReportLine{Kind::Note, label, Texts::tr("offered, and not needed on this port")};
        break;
    }
    return std::nullopt;
}

QString bytesText(qint64 bytes)
{
    const QLocale locale;
    return Texts::tr("%1 bytes (%2)")
        .arg(locale.toString(bytes),
             locale.formattedDataSize(bytes, 0, QLocale::DataSizeTraditionalFormat));
}

} // namespace

QList<ReportLine> linesOf(const ServerReport &report)
{
    QList<ReportLine> lines;
    const auto add = [&lines](Kind kind, const QString &label, const QString &text) {
        lines.append({kind, label, text});
    };
    const bool isReady = report.reached == ServerStep::Ready;
    if (!report.addresses.isEmpty()) {
        add(Kind::Good, Texts::tr("Server"),
            report.server.host + QLatin1String(": ") + report.addresses.join(QLatin1String(", ")));
    }
    if (!report.address.isEmpty()) {
        add(Kind::Good, Texts::tr("Connection"),
            Texts::tr("%1, port %2").arg(report.address, QString::number(report.server.port)));
    }
    if (!report.greeting.isEmpty())
        add(Kind::Good, Texts::tr("Greeting"), report.greeting);
    if (!report.encryption.isEmpty())
        add(Kind::Good, Texts::tr("Encryption"), report.encryption);
    else if (isReady)
        add(Kind::Note, Texts::tr("Encryption"), Texts::tr("none: others can read what is sent"));
    if (report.certificate)
        lines += linesOf(*report.certificate);
    if (!report.extensions.isEmpty()) {
        add(Kind::Good, Texts::tr("Extensions"), report.extensions.join(QLatin1String(", ")));
    }
    if (const auto login = loginLine(report))
        lines += *login;
    if (report.largestMessage > 0)
        add(Kind::Good, Texts::tr("Largest message"), bytesText(report.largestMessage));
    else if (isReady)
        add(Kind::Note, Texts::tr("Largest message"), Texts::tr("no limit is announced"));
    if (!report.failure.isEmpty())
        add(Kind::Bad, Texts::tr("Result"), report.failure);
    else if (isReady)
        add(Kind::Good, Texts::tr("Result"), Texts::tr("All is well. Nothing was sent."));
    return lines;
}
