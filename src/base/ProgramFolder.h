#pragma once

#include <QString>

/// The folder that holds the log, the address books and the working folder "Temp": the folder of
/// the executable when the user may write there and it was not installed there (a build, a portable
/// copy), else the per-user data folder, which is created when it is missing. Without a separator
/// at its end.
[[nodiscard]] QString programFolder();

/// The same for an executable that lies in that folder.
[[nodiscard]] QString programFolderOf(const QString &executableFolder);

/// The folder of the files that are installed with an executable in that folder; empty when it was
/// not installed.
[[nodiscard]] QString sharedFolderOf(const QString &executableFolder);
