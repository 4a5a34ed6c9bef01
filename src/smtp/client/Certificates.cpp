#include "smtp/client/Certificates.h"

#include <QCryptographicHash>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

QString firstOf(const QStringList &names, const QString &otherwise)
{
    return names.isEmpty() ? otherwise : names.first();
}

/// A name without anything that could tear a line or the screen apart.
QString printable(QString name)
{
    std::ranges::replace_if(
        name, [](QChar c) { return !c.isPrint(); }, u'?');
    return name;
}

QString nameOf(const QSslCertificate &certificate)
{
    const QString organization =
        firstOf(certificate.subjectInfo(QSslCertificate::Organization), u"nobody named"_s);
    return printable(firstOf(certificate.subjectInfo(QSslCertificate::CommonName), organization));
}

QString issuerOf(const QSslCertificate &certificate)
{
    const QString organization =
        firstOf(certificate.issuerInfo(QSslCertificate::Organization), QString());
    const QString name =
        firstOf(certificate.issuerInfo(QSslCertificate::CommonName), u"nobody named"_s);
    return printable(organization.isEmpty() || name.contains(organization)
                         ? name
                         : name + u" ("_s + organization + u')');
}

QStringList namesOf(const QSslCertificate &certificate)
{
    QStringList names;
    for (const QString &name : certificate.subjectAlternativeNames())
        names += printable(name);
    names.removeDuplicates();
    names.sort();
    return names.isEmpty() ? QStringList{nameOf(certificate)} : names;
}

QString dayText(const QDateTime &time)
{
    return QLocale::c().toString(time.toUTC(), u"d MMMM yyyy");
}

/// What is wrong, in words that go on from "it ...".
QString meaningOf(const QSslError &error, const QSslCertificate &shown, const QString &host)
{
    const bool isShown = error.certificate().isNull() || error.certificate() == shown;
    const QSslCertificate &certificate = isShown ? shown : error.certificate();
    const QString subject = isShown ? u"it"_s : u"its issuer's certificate"_s;
    switch (error.error()) {
    case QSslError::CertificateExpired:
        return subject + u" expired on "_s + dayText(certificate.expiryDate());
    case QSslError::CertificateNotYetValid:
        return subject + u" is not valid before "_s + dayText(certificate.effectiveDate());
    case QSslError::HostNameMismatch:
        return u"it is for %1, not for %2"_s.arg(namesOf(shown).join(u", "_s), host);
    case QSslError::SelfSignedCertificate:
        return u"it is signed by nobody but itself, so that its issuer is unknown"_s;
    case QSslError::SelfSignedCertificateInChain:
    case QSslError::UnableToGetIssuerCertificate:
    case QSslError::UnableToGetLocalIssuerCertificate:
    case QSslError::UnableToVerifyFirstCertificate:
    case QSslError::CertificateUntrusted:
    case QSslError::InvalidCaCertificate:
        return u"its issuer, %1, is unknown to this computer"_s.arg(issuerOf(shown));
    case QSslError::CertificateRevoked:
    case QSslError::CertificateBlacklisted:
        return subject + u" was revoked"_s;
    default:
        return error.errorString();
    }
}

} // namespace

ServerCertificate describe(const QSslCertificate &certificate, const QList<QSslError> &errors,
                           const QString &host)
{
    QStringList problems;
    for (const QSslError &error : errors)
        problems += meaningOf(error, certificate, host);
    problems.removeDuplicates();
    ServerCertificate description;
    description.host = host;
    description.owner = nameOf(certificate);
    description.names = namesOf(certificate);
    description.issuer = issuerOf(certificate);
    description.validFrom = certificate.effectiveDate().toUTC();
    description.validUntil = certificate.expiryDate().toUTC();
    description.fingerprint = certificate.digest(QCryptographicHash::Sha256);
    description.problem = problems.join(u"; "_s);
    return description;
}
