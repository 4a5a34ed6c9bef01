#pragma once

#include "account/Accounts.h"
#include "base/RegionalFormats.h"
#include "prompts/Prompts.h"
#include "smtp/Smtp.h"

/// When a session ends because the server's certificate does not verify: asks whether this one
/// certificate is to be trusted for this host from now on.
class CertificateQuestion : public QObject
{
    Q_OBJECT

public:
    CertificateQuestion(const Smtp &smtp, Accounts &accounts, Prompts &prompts,
                        const RegionalFormats &formats);

private:
    void askAbout(const QString &host, const ServerCertificate &certificate);
    [[nodiscard]] QString question(const QString &host, const ServerCertificate &certificate) const;
    void trust(const QString &host, const QByteArray &fingerprint);

    const Smtp &m_smtp;
    Accounts &m_accounts;
    Prompts &m_prompts;
    const RegionalFormats &m_formats;
    QList<std::pair<QString, QByteArray>> m_open; ///< host and fingerprint of the questions
};
