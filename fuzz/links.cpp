// Message files with linked pictures: the search ends, and no link leads out of its folder.

#include "Fuzzing.h"
#include "base/CodePage.h"
#include "message/LinkedFiles.h"

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const QString text = codePage.decode(bytes);
    const QString lower = lowerCaseInPlace(text);
    mustHold(lower.size() == text.size(), "every place stays where it was");
    qsizetype from = 0;
    while (true) {
        const LinkSearch search = findLink(lower, from);
        if (!search.link)
            break;
        const Link link = *search.link;
        mustHold(link.start > from, "the search goes on");
        mustHold(link.length >= 0 && link.start + link.length <= text.size(), "a link is inside");
        const QStringView name = QStringView(text).sliced(link.start, link.length);
        if (!staysBelow(name))
            mustHold(findLinkedFile(QStringLiteral("/usr/share"), name).isEmpty(),
                     "what leads out of the folder is not found");
        from = link.start + link.length;
    }
}
