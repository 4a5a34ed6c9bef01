#include "base/HelpPages.h"

#include "base/ProgramFolder.h"

#include <QFileInfo>

QString folderOfHelp(const QString &programFolder, const QString &executableFolder)
{
    if (QFileInfo::exists(programFolder + QLatin1String("/Help")))
        return programFolder;
    const QString shared = sharedFolderOf(executableFolder);
    return shared.isEmpty() ? programFolder : shared;
}

QString helpAddress(QString folder, const QString &page)
{
    return QLatin1String("file://") + folder.replace(u'\\', u'/') + page;
}
