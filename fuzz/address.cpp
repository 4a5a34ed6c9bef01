// Addresses and paths: the check says what a plain reading of its rule says.

#include "Fuzzing.h"
#include "base/modMain.h"

namespace {

/// The rule, step by step, with positions counted from 1.
bool passes(const QString &address)
{
    const qsizetype at = address.indexOf(u'@') + 1;
    const bool hasOneAt = at >= 2 && address.count(u'@') == 1 && at != address.size();
    const qsizetype dot = address.indexOf(u'.', at) + 1;
    bool isForbidden = false;
    for (const QChar c : address)
        isForbidden = isForbidden || QStringView(u",%\\/*").contains(c);
    return hasOneAt && dot != 0 && dot < address.size() - 1 && !isForbidden;
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    const QString text = QString::fromUtf8(bytes);
    mustHold(IsValidEmail(text) == passes(text), "the check is the rule");
    mustHold(FolderOf(text) + fileNameOf(text) == text, "a path is its folder and its name");
    for (const qint16 width : {qint16(0), qint16(10), qint16(60)}) {
        const QString shortened = Wrap(text, width);
        mustHold(shortened == text || shortened.endsWith(fileNameOf(text)), "the name stays");
    }
}
