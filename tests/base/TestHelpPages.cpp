#include "TestHelpPages.h"

#include "base/HelpPages.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

void TestHelpPages::spacesOfTheProgramFolderStayUnchanged()
{
    QCOMPARE(helpAddress(u"/opt/my programs"_s, u"/Help/ita_help.htm"_s),
             u"file:///opt/my programs/Help/ita_help.htm"_s);
}

void TestHelpPages::backslashesBecomeSlashes()
{
    QCOMPARE(helpAddress(u"C:\\Programs\\Mailer"_s, u"/Help/ita_help.htm"_s),
             u"file://C:/Programs/Mailer/Help/ita_help.htm"_s);
}

void TestHelpPages::helpBesideTheProgramComesFirst()
{
    const QTemporaryDir prefix;
    const QDir folder(prefix.path());
    QVERIFY(folder.mkpath(u"bin/Help"_s) && folder.mkpath(u"share/sorvanta/Help"_s));
    QCOMPARE(folderOfHelp(folder.filePath(u"bin"_s), folder.filePath(u"bin"_s)),
             folder.filePath(u"bin"_s));
}

void TestHelpPages::installedHelpIsFoundBesideTheExecutable()
{
    const QTemporaryDir prefix;
    const QDir folder(prefix.path());
    QVERIFY(folder.mkpath(u"bin"_s) && folder.mkpath(u"share/sorvanta/Help"_s));
    QCOMPARE(folderOfHelp(u"/home/user/data"_s, folder.filePath(u"bin"_s)),
             folder.filePath(u"share/sorvanta"_s));
    QCOMPARE(folderOfHelp(u"/home/user/data"_s, u"/nowhere/bin"_s), u"/home/user/data"_s);
}
