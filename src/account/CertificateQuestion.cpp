#include "account/CertificateQuestion.h"

#include "base/Lines.h"

#include <QPointer>

#include <utility>

namespace {

// What a certificate says of itself is a stranger's text.
QString tamed(const QString &text)
{
    constexpr qsizetype Longest = 100;
    const QString visible = withVisibleControls(text);
    return visible.size() > Longest ? visible.first(Longest) + QStringLiteral("...") : visible;
}

// In two lines, which fit into the box.
QString inTwoLines(QString fingerprint)
{
    fingerprint[fingerprint.size() / 2] = u'\n';
    return fingerprint;
}

} // namespace

CertificateQuestion::CertificateQuestion(const Smtp &smtp, Accounts &accounts, Prompts &prompts,
                                         const RegionalFormats &formats)
    : m_smtp(smtp), m_accounts(accounts), m_prompts(prompts), m_formats(formats)
{
    connect(&smtp, &Smtp::SmtpError, this, [this] {
        const auto certificate = m_smtp.refusedCertificate();
        if (certificate && !certificate->fingerprint.isEmpty())
            askAbout(certificate->host, *certificate);
    });
}

void CertificateQuestion::askAbout(const QString &host, const ServerCertificate &certificate)
{
    const std::pair asked(host.toLower(), certificate.fingerprint);
    if (m_open.contains(asked))
        return;
    m_open.append(asked);
    Question box;
    box.topic = Topic::TrustCertificate;
    box.icon = Icon::Exclamation;
    box.buttons = Buttons::YesNo;
    box.title = tr("Certificate");
    box.text = question(host, certificate);
    // It comes right behind the notice of the failed run, which Enter closes.
    box.enterIsNo = true;
    // The answer is about the server, not about the run that met it: it counts as long as there is
    // somebody to take it.
    const auto stands = [self = QPointer(this)] { return !self.isNull(); };
    m_prompts.ask(box, stands, [this, host, asked](Answer answer) {
        m_open.removeOne(asked);
        if (answer == Answer::Yes)
            trust(host, asked.second);
    });
}

QString CertificateQuestion::question(const QString &host,
                                      const ServerCertificate &certificate) const
{
    return tr("The server %1 shows a certificate that cannot be verified: %2.\n\n"
              "Issued to: %3\nIssued by: %4\nValid from %5 to %6\nSHA-256 fingerprint:\n%7\n\n"
              "Somebody may be pretending to be your server. Ask your provider to read the "
              "fingerprint of the certificate out to you, and compare it.\n\n"
              "Do you want to trust this certificate for this server from now on?")
        .arg(tamed(host), tamed(certificate.problem), tamed(certificate.owner),
             tamed(certificate.issuer), m_formats.shortDate(certificate.validFrom),
             m_formats.shortDate(certificate.validUntil),
             inTwoLines(fingerprintText(certificate.fingerprint)));
}

void CertificateQuestion::trust(const QString &host, const QByteArray &fingerprint)
{
    if (m_accounts.trust(host, fingerprint)) {
        m_prompts.notice(
            {Icon::Information, tr("Certificate"),
             tr("The certificate is trusted from now on. If part of the list already has the "
                "message, uncheck those first; then press Start.")});
    } else {
        m_prompts.notice({Icon::Critical, tr("Certificate"),
                          tr("The settings cannot be written; the certificate is not trusted.")});
    }
}
