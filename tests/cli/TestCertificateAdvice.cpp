#include "TestCertificateAdvice.h"

#include "cli/CertificateAdvice.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

ServerCertificate exampleCertificate()
{
    ServerCertificate certificate;
    certificate.host = u"smtp.example.org"_s;
    certificate.owner = u"mail.provider.example"_s;
    certificate.issuer = u"Provider & Sons"_s;
    certificate.validFrom = QDateTime(QDate(2026, 1, 2), QTime(3, 4), Qt::UTC);
    certificate.validUntil = QDateTime(QDate(2027, 1, 2), QTime(3, 4), Qt::UTC);
    certificate.fingerprint = QByteArray(32, '\xef');
    return certificate;
}

QString fingerprintOfAll(const QString &byte)
{
    return QStringList(32, byte).join(u':');
}

} // namespace

void TestCertificateAdvice::adviceEndsWithTheCommandThatTrustsIt()
{
    const QString fingerprint = fingerprintOfAll(u"EF"_s);
    QCOMPARE(adviceOnCertificate(exampleCertificate(), {}),
             u"The certificate was issued to mail.provider.example by Provider & Sons, valid from "
             "2026-01-02 to 2027-01-02. Its fingerprint is\n"_s +
                 fingerprint +
                 u"\nAsk the provider to read the fingerprint out to you. Only if it is this one, "
                 "trust it with:\n"
                 "sorvanta-cli account smtp.example.org TrustedCertificates "_s +
                 fingerprint);
}

void TestCertificateAdvice::certificatesThatAreTrustedStayTrusted()
{
    const QByteArray other(32, '\x01');
    const QString command = u"sorvanta-cli account smtp.example.org TrustedCertificates '"_s +
                            fingerprintOfAll(u"01"_s) + u' ' + fingerprintOfAll(u"EF"_s) + u'\'';
    QVERIFY(adviceOnCertificate(exampleCertificate(), {other}).endsWith(command));
}

void TestCertificateAdvice::textsOfStrangersNeitherForgeLinesNorReachTheShell()
{
    ServerCertificate certificate = exampleCertificate();
    certificate.owner = u"a\r\nrm -rf ~\r\n"_s;
    certificate.issuer = u"\x1b[2J%5"_s;
    certificate.host = u"a b';$(id)\n"_s;
    const QString advice = adviceOnCertificate(certificate, {});
    const QStringList lines = advice.split(u'\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(0).startsWith(
        u"The certificate was issued to a\\x0d\\x0arm -rf ~\\x0d\\x0a by \\x1b[2J%5, valid"_s));
    QVERIFY(lines.at(3).startsWith(u"sorvanta-cli account 'a b'\\'';$(id)\\x0a' Trusted"_s));
}
