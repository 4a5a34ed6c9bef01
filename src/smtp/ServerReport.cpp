#include "smtp/ServerReport.h"

#include <QCryptographicHash>

QString fingerprintText(const QByteArray &fingerprint)
{
    return QString::fromLatin1(fingerprint.toHex(':').toUpper());
}

QByteArray fingerprintOf(const QString &text)
{
    QString digits = text.simplified();
    digits.remove(u':').remove(u' ');
    const QByteArray bytes = QByteArray::fromHex(digits.toLatin1());
    const bool isWhole = bytes.size() == QCryptographicHash::hashLength(QCryptographicHash::Sha256);
    return isWhole && bytes.size() * 2 == digits.size() ? bytes : QByteArray();
}
