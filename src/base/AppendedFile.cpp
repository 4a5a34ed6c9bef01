#include "base/AppendedFile.h"

#include <QFile>

#include <unistd.h>

#include <cerrno>

AppendedFile::AppendedFile(std::shared_ptr<QFile> file, const QString &path)
    : m_file(std::move(file)), m_path(path), m_size(m_file->size())
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
    qint64 written = 0;
    // What a disk has room for only in part is refused without a reason; offered the rest, the
    // system says why.
    while (written < bytes.size()) {
        const qint64 part = m_file->write(bytes.constData() + written, bytes.size() - written);
        if (part <= 0) {
            const FileError error{m_path, m_file->errorString()};
            m_file->resize(m_size);
            m_file->seek(m_size);
            return tl::unexpected(error);
        }
        written += part;
    }
    m_size += written;
    return {};
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
