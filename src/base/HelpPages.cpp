#include "base/HelpPages.h"

#include <QDir>
#include <QFileInfo>

QString folderOfHelp(const QString &programFolder, const QString &executableFolder)
{
    if (QFileInfo::exists(programFolder + QLatin1String("/Help")))
        return programFolder;
    const QString shared = QDir::cleanPath(executableFolder + QLatin1String("/../share/sorvanta"));
    return QFileInfo::exists(shared + QLatin1String("/Help")) ? shared : programFolder;
}

QString helpAddress(QString folder, const QString &page)
{
    return QLatin1String("file://") + folder.replace(u'\\', u'/') + page;
}
