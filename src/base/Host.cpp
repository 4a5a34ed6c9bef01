#include "base/Host.h"

#include <QSysInfo>

QString computerName()
{
    return QSysInfo::machineHostName();
}
