// Message files: whatever character set a file names, its text can be read, and be written again.

#include "Fuzzing.h"
#include "message/MessageReader.h"

namespace {

const QByteArray Mark("\xEF\xBB\xBF");
const QByteArrayView Declaration("charset=");

void check(const QByteArray &content, MessageKind kind)
{
    static const CodePage codePage("windows-1252");
    const QString text = decodeMessage(content, kind, codePage);
    mustHold(text.isValidUtf16(), "what is read is text");
    mustHold(decodeMessage(Mark + text.toUtf8(), kind, codePage) == text, "text comes back");
    // Else it is not in the character set that it declares.
    if (content.toLower().contains(Declaration))
        mustHold(text.contains(QLatin1String(Declaration), Qt::CaseInsensitive),
                 "a declaration that was read is in the text");
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    check(bytes.toByteArray(), MessageKind::Text);
    check(bytes.toByteArray(), MessageKind::Html);
}
