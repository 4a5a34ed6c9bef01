#pragma once

#include <QString>
#include <QStringList>

/// The messages of the log in that folder, without date, time and separators, and without the line
/// that the program started. There must be one log there.
[[nodiscard]] QStringList messagesOfLog(const QString &folder);
