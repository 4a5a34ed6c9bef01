#pragma once

#include "base/Files.h"

#include <QStringList>

/// The folder "Runs" of the program's folder, which holds a record for each run.
class RunFolder
{
public:
    explicit RunFolder(const QString &programFolder);

    /// The records, newest first.
    [[nodiscard]] QStringList files() const;
    /// A name that no record has yet, by that moment (milliseconds since 1970 UTC); makes the
    /// folder when it is missing.
    [[nodiscard]] QString newFile(qint64 moment) const;
    /// The file whose lock stands for a project that lies where nobody may write.
    [[nodiscard]] QString standInFor(const QString &project) const;
    static void remove(const QString &file);

private:
    QString m_folder;
};
