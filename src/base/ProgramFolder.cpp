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
    // The administrator may write where programs are installed, and is not to do so unawares.
    if (sharedFolderOf(executableFolder).isEmpty() && QFileInfo(executableFolder).isWritable())
        return executableFolder;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         QStringLiteral("/Sorvanta");
    QDir().mkpath(data);
    return data;
}

QString sharedFolderOf(const QString &executableFolder)
{
    const QString shared = QDir::cleanPath(executableFolder + QStringLiteral("/../share/sorvanta"));
    return QFileInfo(shared).isDir() ? shared : QString();
}
