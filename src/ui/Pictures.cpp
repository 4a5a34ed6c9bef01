#include "ui/Pictures.h"

QIcon Pictures::icon(const char *name)
{
    return QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(name)));
}
