#include "smtp/ServerReport.h"

#include <QRegularExpression>

QString fingerprintText(const QByteArray &fingerprint)
{
    return QString::fromLatin1(fingerprint.toHex(':').toUpper());
}

QByteArray fingerprintOf(const QString &text)
{
    static const QRegularExpression Sha256(QStringLiteral("^[0-9A-Fa-f]{64}$"));
    QString digits = text;
    digits.remove(u':').remove(QRegularExpression(QStringLiteral("\\s")));
    return Sha256.match(digits).hasMatch() ? QByteArray::fromHex(digits.toLatin1()) : QByteArray();
}
