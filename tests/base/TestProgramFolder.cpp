#include "TestProgramFolder.h"

#include "base/ProgramFolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

void TestProgramFolder::besideTheProgramWhenTheUserMayWriteThere()
{
    const QString beside = QCoreApplication::applicationDirPath();
    if (!QFileInfo(beside).isWritable())
        QSKIP("this user may not write beside this program");
    QCOMPARE(programFolder(), beside);
}

void TestProgramFolder::inTheUsersDataFolderElse()
{
    if (::geteuid() != 0)
        QSKIP("only the administrator can become a user who may not write beside this program");
    const QTemporaryDir data;
    QCOMPARE(::chmod(qPrintable(data.path()), 0777), 0);
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t Nobody = 65534;
        const bool fits = ::setuid(Nobody) == 0 && programFolder() == data.filePath(u"Sorvanta"_s);
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
}
