#include "base/Files.h"

#include "base/CodePage.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

tl::unexpected<FileError> failed(const QString &path, const QString &reason)
{
    return tl::unexpected(FileError{path, reason});
}

QString translated(const char *text)
{
    return QCoreApplication::translate("Files", text);
}

tl::expected<void, FileError> openRegularFile(QFile &file, const QString &path)
{
    const QFileInfo info(systemPath(path));
    if (path.isEmpty() || !info.exists())
        return failed(path, translated(QT_TRANSLATE_NOOP("Files", "the file does not exist")));
    if (info.isDir())
        return failed(path, translated(QT_TRANSLATE_NOOP("Files", "it is a folder")));
    if (!info.isFile())
        return failed(path, translated(QT_TRANSLATE_NOOP("Files", "it is not a regular file")));
    file.setFileName(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return failed(path, file.errorString());
    return {};
}

// What a disk has room for only in part is refused without a reason; offered the rest, the system
// says why.
bool writeWhole(QSaveFile &file, const QByteArray &content)
{
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 part = file.write(content.constData() + written, content.size() - written);
        if (part <= 0)
            return false;
        written += part;
    }
    // The same for what the file still held back: the second try gets the reason.
    return file.flush() || file.flush();
}

// The content is on the disk; its name has to be too, or a loss of power brings the old file back.
// Where that cannot be had, the file is none the worse.
void syncFolderOf(const QString &file)
{
#ifndef Q_OS_WIN
    const QByteArray folder = QFile::encodeName(QFileInfo(file).canonicalPath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
#else
    Q_UNUSED(file)
#endif
}

} // namespace

QString systemPath(const QString &path)
{
#ifdef Q_OS_WIN
    return path;
#else
    if (path.startsWith(u'/'))
        return path;
    QString native = path;
    return native.replace(u'\\', u'/');
#endif
}

bool isExistingFile(const QString &path)
{
    return !path.isEmpty() && QFileInfo(systemPath(path)).isFile();
}

tl::expected<void, FileError> checkReadable(const QString &path)
{
    QFile file;
    return openRegularFile(file, path);
}

tl::expected<QByteArray, FileError> readWholeFile(const QString &path)
{
    QFile file;
    if (const auto opened = openRegularFile(file, path); !opened)
        return tl::unexpected(opened.error());
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failed(path, file.errorString());
    return content;
}

tl::expected<QByteArray, FileError> readTextFile(const QString &path)
{
    auto content = readWholeFile(path);
    if (content && isBrokenUtf8(*content)) {
        return failed(path, translated(QT_TRANSLATE_NOOP(
                                "Files", "it begins as UTF-8 and goes on otherwise")));
    }
    return content;
}

tl::expected<void, FileError> replaceWholeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(systemPath(path));
    // Commit alone would take a file whose last buffer found no room for a whole one.
    if (!file.open(QIODevice::WriteOnly) || !writeWhole(file, content) || !file.commit())
        return failed(path, file.errorString());
    syncFolderOf(file.fileName());
    return {};
}
