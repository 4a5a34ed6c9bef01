// Letters of hostile texts: whatever stands in a name, a subject or a body, the letter is made of
// whole lines within the limits, and nobody smuggles in a header.

#include "Fuzzing.h"
#include "base/Clock.h"
#include "smtp/Smtp.h"
#include "smtp/client/LetterBuilder.h"

#include <QList>

namespace {

constexpr qsizetype LongestLine = 998; // RFC 5321, section 4.5.3.1.6, without CR LF

QString textOf(QByteArrayView bytes)
{
    return QString::fromUtf8(bytes);
}

bool isExpected(const QByteArray &name)
{
    static const QList<QByteArray> expected{"From",
                                            "To",
                                            "Subject",
                                            "Date",
                                            "Message-ID",
                                            "X-Id",
                                            "X-Mailer",
                                            "MIME-Version",
                                            "Content-Type",
                                            "Content-Transfer-Encoding",
                                            "Disposition-Notification-To"};
    return expected.contains(name);
}

void checkHeader(const QByteArray &header)
{
    QList<QByteArray> names;
    for (const QByteArray &line : header.split('\n')) {
        if (line.startsWith(' ') || line.startsWith('\t'))
            continue;
        const QByteArray name = line.left(line.indexOf(':'));
        mustHold(isExpected(name), "only known headers are there");
        mustHold(!names.contains(name), "no header is there twice");
        names += name;
    }
    for (const char *name : {"From", "To", "Subject", "Date", "Message-ID", "MIME-Version"})
        mustHold(names.contains(name), "what every letter has is there");
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    static const SystemClock clock;
    Pieces pieces(bytes);
    OutgoingMessage message;
    message.FromName = textOf(pieces.next());
    message.FromAddress = textOf(pieces.next());
    message.RecipientAddress = textOf(pieces.next());
    message.Subject = textOf(pieces.next());
    message.TextBody = textOf(pieces.next());
    message.HtmlBody = textOf(pieces.next());
    message.ReceiptAddress = textOf(pieces.next());
    message.RequestReceipt = !message.ReceiptAddress.isEmpty();
    message.Mailer = textOf(pieces.next());
    message.RecipientList = !pieces.next().isEmpty();
    message.ExtraHeaders = QStringLiteral("X-Id: 1\r\nMessage-ID: <1@pc>\r\n");
    message.DateText = QStringLiteral("Sat, 21 Nov 2026 09:00:00");

    LetterBuilder builder(clock);
    const auto letter = builder.build(message, {});
    if (!letter)
        return;
    const QByteArray content = letter->content.toByteArray();
    mustHold(content.endsWith("\r\n"), "the letter ends in a line end");
    const qsizetype end = content.indexOf("\r\n\r\n");
    mustHold(end > 0, "a header and a body");
    for (const QByteArray &line : content.chopped(2).split('\n')) {
        const QByteArray text = line.endsWith('\r') ? line.chopped(1) : line;
        mustHold(!text.contains('\r') && !text.contains('\0'), "lines are whole");
        mustHold(text.size() <= LongestLine, "no line is too long");
    }
    mustHold(content.count('\n') == content.count("\r\n"), "every line ends in CR LF");
    const QByteArray header = content.first(end).replace("\r\n", "\n");
    checkHeader(header);
    if (letter->recipients.size() > 1)
        mustHold(header.contains("\nTo: undisclosed-recipients:;\n"),
                 "a group is not shown to its members");
}
