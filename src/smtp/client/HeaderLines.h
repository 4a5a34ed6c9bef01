#pragma once

#include <QByteArray>
#include <QString>

/// The header lines that the caller hands in complete, made safe: each is one field with a name
/// and a value, none ends the header, and none repeats a field that the client writes itself. A
/// good line stands as it was given.
[[nodiscard]] QByteArray safeHeaderLines(const QString &lines);
