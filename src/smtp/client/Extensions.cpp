#include "smtp/client/Extensions.h"

#include "smtp/client/ReplyReader.h"

Extensions Extensions::fromEhlo(const QByteArray &lines)
{
    Extensions extensions;
    for (QByteArray line : lines.split('\n').sliced(1)) {
        extensions.lines += printable(line.simplified());
        line = line.simplified().toUpper();
        // The form of old servers, from before the standard.
        if (line.startsWith("AUTH="))
            line[4] = ' ';
        const QList<QByteArray> words = line.split(' ');
        const QByteArray &keyword = words.first();
        if (keyword == "PIPELINING") {
            extensions.pipelining = true;
        } else if (keyword == "CHUNKING") {
            extensions.chunking = true;
        } else if (keyword == "SMTPUTF8") {
            extensions.smtpUtf8 = true;
        } else if (keyword == "STARTTLS") {
            extensions.startTls = true;
        } else if (keyword == "AUTH") {
            for (const QByteArray &mechanism : words.sliced(1)) {
                if (!extensions.authMechanisms.contains(mechanism))
                    extensions.authMechanisms += mechanism;
            }
        } else if (keyword == "SIZE") {
            extensions.size = true;
            extensions.largestMessage = words.value(1).toLongLong();
        }
    }
    return extensions;
}
