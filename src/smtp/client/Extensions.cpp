#include "smtp/client/Extensions.h"

#include "smtp/client/ReplyReader.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestOffer = 200;

} // namespace

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
            extensions.auth = true;
            extensions.authOffer = printable(line.mid(5).left(LongestOffer));
            for (const QByteArray &mechanism : {"PLAIN"_qba, "LOGIN"_qba, "XOAUTH2"_qba}) {
                if (words.contains(mechanism) && !extensions.authMechanisms.contains(mechanism))
                    extensions.authMechanisms += mechanism;
            }
        } else if (keyword == "SIZE") {
            extensions.size = true;
            extensions.largestMessage = std::max<qint64>(0, words.value(1).toLongLong());
        }
    }
    return extensions;
}
