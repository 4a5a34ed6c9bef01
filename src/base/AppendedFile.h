#pragma once

#include "base/Files.h"

#include <functional>
#include <memory>

class QFile;

/// Writes all of the bytes at the end of a file, where its position is, or nothing; else returns
/// what the system says of it. The file is open without a buffer.
[[nodiscard]] tl::expected<void, QString> appendWhole(QFile &file, const QByteArray &bytes);

/// A file that only grows. What append has taken survives the end of the program; what is on the
/// disk survives a loss of power too, and gets there by a job that any thread can do, since a disk
/// takes its time.
class AppendedFile
{
public:
    using DiskJob = std::function<tl::expected<void, FileError>()>;

    /// Writes behind what an existing file holds.
    [[nodiscard]] static tl::expected<AppendedFile, FileError> open(const QString &path);

    /// Appends all of it or nothing.
    [[nodiscard]] tl::expected<void, FileError> append(const QByteArray &bytes);
    /// The job that returns when everything appended before it began is on the disk. It may outlive
    /// this object.
    [[nodiscard]] DiskJob diskJob() const;

private:
    AppendedFile(std::shared_ptr<QFile> file, const QString &path);

    std::shared_ptr<QFile> m_file;
    QString m_path;
};
