// Message files with linked pictures: the search ends, and no link leads out of its folder.

#include "Fuzzing.h"
#include "base/CodePage.h"
#include "message/LinkedFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

/// A message's folder with pictures, and with links that lead inside, outside and nowhere.
class MessageFolder
{
public:
    MessageFolder()
    {
        QDir root(m_root.path());
        for (const char *folder : {"letter/sub/deep", "private"})
            mustHold(root.mkpath(QString::fromLatin1(folder)), "there is room for a folder");
        for (const char *file : {"letter/a.png", "letter/B.PNG", "letter/sub/deep/c d.gif",
                                 "letter/?", "private/a.png", "secret.png"})
            mustHold(QFile(root.filePath(QString::fromLatin1(file))).open(QIODevice::WriteOnly),
                     "there is room for a file");
        link("a.png", "letter/in.png");
        link("sub", "letter/inside");
        link("../secret.png", "letter/out.png");
        link("../private", "letter/outside");
        link("loop", "letter/loop");
    }

    [[nodiscard]] QString path() const { return m_root.filePath(QStringLiteral("letter")); }
    [[nodiscard]] bool holds(const QString &file) const
    {
        const QFileInfo info(file);
        return info.isFile() &&
               info.canonicalFilePath().startsWith(QDir(path()).canonicalPath() + u'/');
    }

private:
    void link(const char *target, const char *name)
    {
        mustHold(
            QFile::link(QString::fromLatin1(target), m_root.filePath(QString::fromLatin1(name))),
            "there is room for a link");
    }

    QTemporaryDir m_root;
};

} // namespace

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    static const MessageFolder folder;
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
        const QString file = findLinkedFile(folder.path(), name);
        mustHold(file.isEmpty() || folder.holds(file), "what is found lies in the folder");
        from = link.start + link.length;
    }
}
