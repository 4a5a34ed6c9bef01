#include "TestProgramFolder.h"

#include "base/ProgramFolder.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

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
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    // In a child, because the administrator may write everywhere and has to become somebody else.
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t Nobody = 65534;
        const bool mayNotWrite = ::geteuid() != 0 || ::setuid(Nobody) == 0;
        const bool fits =
            mayNotWrite && programFolderOf(beside.path()) == data.filePath(u"Sorvanta"_s);
        ::_exit(fits ? 0 : 1);
    }
    if (before.isEmpty())
        qunsetenv("XDG_DATA_HOME");
    else
        qputenv("XDG_DATA_HOME", before);
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    QVERIFY(QFileInfo(data.filePath(u"Sorvanta"_s)).isDir());
    QCOMPARE(::chmod(qPrintable(beside.path()), 0755), 0);
}
