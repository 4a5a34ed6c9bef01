#include "base/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString programFolder()
{
    const QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo(beside).isWritable())
        return beside;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         QStringLiteral("/Sorvanta");
    QDir().mkpath(data);
    return data;
}
