#include "base/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString programFolder()
{
    return programFolderOf(QCoreApplication::applicationDirPath());
}

QString programFolderOf(const QString &executableFolder)
{
    if (QFileInfo(executableFolder).isWritable())
        return executableFolder;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         QStringLiteral("/Sorvanta");
    QDir().mkpath(data);
    return data;
}
