#include "message/LinkedFiles.h"

#include "base/Files.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

// Both as the system knows them, so that relative folders are found too.
QString below(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

// The entry of that name in the folder; of several that differ in letter case, the exact one.
QString entryOf(const QString &folder, const QString &name)
{
    const QString exact = below(folder, name);
    if (QFileInfo::exists(exact))
        return exact;
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    const auto found = std::find_if(entries.begin(), entries.end(), [&name](const QString &entry) {
        return entry.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == entries.end() ? QString() : below(folder, *found);
}

// A symbolic link may lead out of the folder.
bool liesBelow(const QFileInfo &file, const QString &folder)
{
    const QString canonical = QDir(folder).canonicalPath();
    return file.canonicalFilePath().startsWith(below(canonical, {}));
}

// "/" and "\" both separate.
QStringList namesIn(QStringView link)
{
    return link.toString().replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
}

} // namespace

QString lowerCaseInPlace(QString text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](QChar c) { return c.toLower(); });
    return text;
}

LinkSearch findLink(QStringView lowerText, qsizetype from)
{
    constexpr qsizetype AttributeLength = 4; // src=
    const qsizetype attribute = lowerText.indexOf(QLatin1String("src="), from);
    if (attribute < 0)
        return {};
    // One character after the equals sign is skipped.
    const qsizetype start = attribute + AttributeLength + 1;
    const qsizetype end = start > lowerText.size() ? -1 : lowerText.indexOf(u'"', start);
    if (end < 0)
        return {std::nullopt, true};
    return {Link{start, end - start}, false};
}

bool staysBelow(QStringView link)
{
    const QStringList names = namesIn(link);
    return !names.isEmpty() && !names.contains(QLatin1String("..")) &&
           !link.contains(QChar(QChar::Null));
}

QString findLinkedFile(const QString &folder, QStringView link)
{
    if (!staysBelow(link))
        return {};
    const QString start = folder.isEmpty() ? QStringLiteral(".") : systemPath(folder);
    QString path = start;
    const QStringList names = namesIn(link);
    for (const QString &name : names) {
        path = entryOf(path, name);
        if (path.isEmpty())
            return {};
    }
    const QFileInfo file(path);
    return file.isFile() && liesBelow(file, start) ? path : QString();
}
