#pragma once

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

/// Why a file could not be read or written: the path as the user knows it, and the reason in one
/// sentence.
struct FileError
{
    QString path;
    QString reason;

    /// "path: reason", one line.
    [[nodiscard]] QString toText() const { return path + QStringLiteral(": ") + reason; }
};

/// The path under which the system knows the file: on POSIX a name that is not absolute has its
/// "\" turned into "/".
[[nodiscard]] QString systemPath(const QString &path);

/// Whether a file (not a folder) of that path exists.
[[nodiscard]] bool isExistingFile(const QString &path);

/// The whole content of a regular file. Folders, devices and pipes are refused: reading them
/// could take for ever.
[[nodiscard]] tl::expected<QByteArray, FileError> readWholeFile(const QString &path);

/// The same for a text that is to be written back: one that says by a byte-order mark that it is
/// UTF-8, and is not, cannot be read without a loss.
[[nodiscard]] tl::expected<QByteArray, FileError> readTextFile(const QString &path);

/// Whether readWholeFile would open that file; reads nothing.
[[nodiscard]] tl::expected<void, FileError> checkReadable(const QString &path);

/// Replaces the file as a whole: after a failure the old file is there, untouched.
[[nodiscard]] tl::expected<void, FileError> replaceWholeFile(const QString &path,
                                                             const QByteArray &content);
