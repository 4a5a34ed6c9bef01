#include "TestProgramFolder.h"

#include "base/ProgramFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Makes that folder the user's data folder until what it returns goes.
auto usersDataIn(const QString &folder)
{
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", folder.toUtf8());
    return qScopeGuard([before] {
        if (before.isEmpty())
            qunsetenv("XDG_DATA_HOME");
        else
            qputenv("XDG_DATA_HOME", before);
    });
}

} // namespace

void TestProgramFolder::besideTheProgramWhenTheUserMayWriteThere()
{
    const QTemporaryDir beside;
    QCOMPARE(programFolderOf(beside.path()), beside.path());
}

void TestProgramFolder::inTheUsersDataFolderElse()
{
    const QTemporaryDir beside;
    const QTemporaryDir data;
    QCOMPARE(::chmod(qPrintable(beside.path()), 0555), 0);
    QCOMPARE(::chmod(qPrintable(data.path()), 0777), 0);
    const auto guard = usersDataIn(data.path());
    // In a child, because the administrator may write everywhere and has to become somebody else.
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t Nobody = 65534;
        const bool mayNotWrite = ::geteuid() != 0 || ::setuid(Nobody) == 0;
        const bool fits =
            mayNotWrite && programFolderOf(beside.path()) == data.filePath(u"Sorvanta"_s);
        ::_exit(fits ? 0 : 1);
    }
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    QVERIFY(QFileInfo(data.filePath(u"Sorvanta"_s)).isDir());
    QCOMPARE(::chmod(qPrintable(beside.path()), 0755), 0);
}

void TestProgramFolder::inTheUsersDataFolderWhenTheProgramIsInstalled()
{
    const QTemporaryDir prefix;
    const QTemporaryDir data;
    const QDir folder(prefix.path());
    QVERIFY(folder.mkpath(u"bin"_s) && folder.mkpath(u"share/sorvanta"_s));
    const auto guard = usersDataIn(data.path());
    QCOMPARE(programFolderOf(folder.filePath(u"bin"_s)), data.filePath(u"Sorvanta"_s));
    QVERIFY(folder.rmdir(u"share/sorvanta"_s));
    QCOMPARE(programFolderOf(folder.filePath(u"bin"_s)), folder.filePath(u"bin"_s));
}
