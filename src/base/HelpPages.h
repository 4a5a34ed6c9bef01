#pragma once

#include <QString>

/// The folder whose "Help" holds the help pages: the program's folder when they are there, else
/// the folder of shared files beside an installed executable.
[[nodiscard]] QString folderOfHelp(const QString &programFolder, const QString &executableFolder);

/// The address of a help page; the page's path is relative to the folder and begins with "/".
/// Nothing is encoded: blanks stay blanks.
[[nodiscard]] QString helpAddress(QString folder, const QString &page);
