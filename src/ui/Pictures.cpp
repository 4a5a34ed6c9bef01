#include "ui/Pictures.h"

QIcon Pictures::icon(const char *name)
{
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(name));
    QIcon icon(file);
    // Else a selected row tints its picture in the colour of the selection, until it is gone.
    icon.addFile(file, {}, QIcon::Selected);
    return icon;
}
