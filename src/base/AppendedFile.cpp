#include "base/AppendedFile.h"

#include <QFile>

#include <unistd.h>

#include <cerrno>

tl::expected<void, QString> appendWhole(QFile &file, const QByteArray &bytes)
{
    const qint64 start = file.pos();
    qint64 written = 0;
    // What a disk has room for only in part is refused without a reason; offered the rest, the
    // system says why.
    while (written < bytes.size()) {
        const qint64 part = file.write(bytes.constData() + written, bytes.size() - written);
        if (part <= 0) {
            const QString reason = file.errorString();
            // What another program wrote behind it meanwhile stays.
            if (file.size() == start + written)
                file.resize(start);
            file.seek(start);
            return tl::unexpected(reason);
        }
        written += part;
    }
    return {};
}

AppendedFile::AppendedFile(std::shared_ptr<QFile> file, const QString &path)
    : m_file(std::move(file)), m_path(path)
{}

tl::expected<AppendedFile, FileError> AppendedFile::open(const QString &path)
{
    const auto file = std::make_shared<QFile>(systemPath(path));
    if (!file->open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered) ||
        !file->seek(file->size()))
        return tl::unexpected(FileError{path, file->errorString()});
    return AppendedFile(file, path);
}

tl::expected<void, FileError> AppendedFile::append(const QByteArray &bytes)
{
    return appendWhole(*m_file, bytes).map_error([this](const QString &reason) {
        return FileError{m_path, reason};
    });
}

AppendedFile::DiskJob AppendedFile::diskJob() const
{
    return [file = m_file, path = m_path]() -> tl::expected<void, FileError> {
        while (::fdatasync(file->handle()) != 0) {
            if (errno != EINTR)
                return tl::unexpected(FileError{path, qt_error_string(errno)});
        }
        return {};
    };
}
