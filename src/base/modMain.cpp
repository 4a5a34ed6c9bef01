#include "base/modMain.h"

#include "base/Files.h"

#include <QFile>
#include <QFileInfo>

namespace {

// A path that begins with "/" is a native one of a system that separates folders so; every other
// path is written in the Windows manner.
QChar separatorOf(const QString &path)
{
    return path.startsWith(u'/') ? u'/' : u'\\';
}

} // namespace

bool IsValidEmail(const QString &address)
{
    const qsizetype at = address.indexOf(u'@');
    if (at < 1)
        return false;
    if (address.indexOf(u'@', at + 1) >= 0)
        return false;
    if (at == address.size() - 1)
        return false;
    const qsizetype dot = address.indexOf(u'.', at + 1);
    // At least two characters follow the first dot behind the "@".
    if (dot < 0 || dot + 1 >= address.size() - 1)
        return false;
    for (const char16_t forbidden : {u',', u'%', u'\\', u'/', u'*'}) {
        if (address.contains(QChar(forbidden)))
            return false;
    }
    return true;
}

QString Wrap(QString path, qint16 nChar)
{
    const QChar separator = separatorOf(path);
    const bool isNetworkPath = path.startsWith(QLatin1String("\\\\"));
    const qsizetype kept = path.indexOf(separator, isNetworkPath ? 2 : 0) + 1;
    qsizetype from = kept;
    while (path.size() > nChar) {
        const qsizetype end = path.indexOf(separator, from);
        if (end < 0)
            break;
        path.replace(kept, end - kept, QLatin1String("..."));
        from = path.indexOf(separator, kept) + 1;
    }
    return path;
}

QString FolderOf(const QString &path)
{
    return path.left(path.lastIndexOf(separatorOf(path)) + 1);
}

QString fileNameOf(const QString &path)
{
    return path.mid(FolderOf(path).size());
}

qint32 FileSizeOf(const QString &path)
{
    const QFileInfo info(systemPath(path));
    if (!info.isFile())
        return -1;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return static_cast<qint32>(static_cast<quint32>(file.size()));
}

QString ResolveProgramPath(const QString &name, const QString &programFolder)
{
    const bool hasDrive = name.size() > 1 && name[1] == u':';
    if (hasDrive || name.startsWith(QLatin1String("\\\\")) || name.startsWith(u'/'))
        return name;
    return joinPath(programFolder, name);
}

QString joinPath(const QString &folder, const QString &name)
{
    const QChar separator = separatorOf(folder);
    QString joined = folder;
    if (!joined.endsWith(separator))
        joined += separator;
    // Names are written in the Windows manner; below a native folder they follow its own.
    return joined + (separator == u'/' ? QString(name).replace(u'\\', u'/') : name);
}
