// Servers' replies: however the bytes are cut into chunks, the replies are the same.

#include "Fuzzing.h"
#include "smtp/client/ReplyReader.h"

#include <QList>

#include <algorithm>

namespace {

/// All replies, and what ended them.
QList<QByteArray> repliesIn(QByteArrayView bytes, qsizetype chunk)
{
    QList<QByteArray> replies;
    ReplyReader reader{Limits()};
    while (true) {
        const auto reply = reader.next();
        if (!reply) {
            replies.append("error");
            return replies;
        }
        if (*reply) {
            const ServerReply words = (*reply)->toServerReply(SmtpVerb::Rcpt);
            mustHold(!words.text.contains(u'\r') && !words.text.contains(QChar(0)),
                     "control characters are made visible or taken out");
            replies.append(QByteArray::number((*reply)->code) + ' ' + (*reply)->lines);
            continue;
        }
        if (bytes.isEmpty())
            return replies;
        const qsizetype size = std::min(chunk, bytes.size());
        reader.feed(bytes.first(size));
        bytes = bytes.sliced(size);
    }
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    const QList<QByteArray> whole = repliesIn(bytes, std::max<qsizetype>(bytes.size(), 1));
    mustHold(repliesIn(bytes, 1) == whole, "single bytes give the same replies");
    mustHold(repliesIn(bytes, 7) == whole, "chunks give the same replies");
}
