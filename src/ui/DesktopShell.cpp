#include "ui/DesktopShell.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

void DesktopShell::open(const QString &address)
{
    QDesktopServices::openUrl(QUrl(address));
}

bool DesktopShell::isProgram(const QString &name) const
{
    return !QStandardPaths::findExecutable(name).isEmpty();
}

bool DesktopShell::start(const QString &program, const QStringList &arguments)
{
    return QProcess::startDetached(program, arguments);
}
