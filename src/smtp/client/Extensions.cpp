#include "smtp/client/Extensions.h"

#include <QList>

Extensions Extensions::fromEhlo(const QByteArray &lines)
{
    Extensions extensions;
    for (const QByteArray &line : lines.split('\n').sliced(1)) {
        const QList<QByteArray> words = line.simplified().toUpper().split(' ');
        const QByteArray &keyword = words.first();
        if (keyword == "PIPELINING") {
            extensions.pipelining = true;
        } else if (keyword == "CHUNKING") {
            extensions.chunking = true;
        } else if (keyword == "SMTPUTF8") {
            extensions.smtpUtf8 = true;
        } else if (keyword == "SIZE") {
            extensions.size = true;
            extensions.largestMessage = words.value(1).toLongLong();
        }
    }
    return extensions;
}
