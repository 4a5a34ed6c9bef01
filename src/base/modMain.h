#pragma once

#include <QString>

/// The program's one rule for an e-mail address. It is meant to be exactly this permissive: spaces,
/// quotes, semicolons, a dot right after "@" and doubled dots all pass.
[[nodiscard]] bool IsValidEmail(const QString &address);

/// Shortens a path for display towards nChar characters, by putting "..." in the place of leading
/// folders one at a time. The root and the file name always stay, so the result may be longer.
[[nodiscard]] QString Wrap(QString path, qint16 nChar);

/// The path up to and including its last separator; empty when it has none.
[[nodiscard]] QString FolderOf(const QString &path);

/// The part of the path after its last separator.
[[nodiscard]] QString fileNameOf(const QString &path);

/// The low 32 bits of the file's size in bytes, or -1 when it cannot be opened or is no file.
[[nodiscard]] qint32 FileSizeOf(const QString &path);

/// The name made absolute: one that is not yet is put below the program's folder.
[[nodiscard]] QString ResolveProgramPath(const QString &name, const QString &programFolder);

/// Folder and name joined by the folder's own separator.
[[nodiscard]] QString joinPath(const QString &folder, const QString &name);
