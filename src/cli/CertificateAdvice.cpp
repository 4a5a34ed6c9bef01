#include "cli/CertificateAdvice.h"

#include "account/AccountValues.h"
#include "base/Lines.h"

#include <algorithm>

namespace {

// A word that any shell takes as it is.
QString shellWord(const QString &text)
{
    const auto isPlain = [](QChar c) {
        return (c.unicode() < 0x80 && c.isLetterOrNumber()) || QStringLiteral("-._:").contains(c);
    };
    if (!text.isEmpty() && std::ranges::all_of(text, isPlain))
        return text;
    QString quoted = withVisibleControls(text);
    quoted.replace(u'\'', QLatin1String("'\\''"));
    return u'\'' + quoted + u'\'';
}

QString day(const QDateTime &moment)
{
    return moment.date().toString(Qt::ISODate);
}

} // namespace

QString adviceOnCertificate(const ServerCertificate &certificate, QList<QByteArray> trusted)
{
    // The command sets the whole list.
    if (!trusted.contains(certificate.fingerprint))
        trusted.append(certificate.fingerprint);
    ServerAccount account;
    account.trustedCertificates = trusted;
    const QString list = accountValue(account, u"TrustedCertificates").value_or(QString());
    return QStringLiteral("The certificate was issued to %1 by %2, valid from %3 to %4. Its "
                          "fingerprint is\n%5\n"
                          "Ask the provider to read the fingerprint out to you. Only if it is this "
                          "one, trust it with:\n"
                          "sorvanta-cli account %6 TrustedCertificates %7")
        .arg(withVisibleControls(certificate.owner), withVisibleControls(certificate.issuer),
             day(certificate.validFrom), day(certificate.validUntil),
             fingerprintText(certificate.fingerprint), shellWord(certificate.host),
             shellWord(list));
}

void adviseOnRefusedCertificates(const Smtp &smtp, const ServerAccounts &accounts, Output &output)
{
    QObject::connect(&smtp, &Smtp::SmtpError, &smtp, [&smtp, &accounts, &output] {
        if (const auto certificate = smtp.refusedCertificate()) {
            output.message(adviceOnCertificate(
                *certificate, accounts.account(certificate->host).trustedCertificates));
        }
    });
}
