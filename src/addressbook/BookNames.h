#pragma once

#include <QString>

/// The base of a book's file name: the book's name without the characters that file names must not
/// have.
[[nodiscard]] QString MakeFileName(QString bookName);

/// The first of "base.suffix", "base (2).suffix", "base (3).suffix", ... that is not there in that
/// folder, as a path.
[[nodiscard]] QString freePath(const QString &folder, const QString &base, const QString &suffix);
