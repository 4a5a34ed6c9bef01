#include "TestModMain.h"

#include "base/modMain.h"
#include "support/AsNobody.h"
#include "support/DiskFiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

void TestModMain::addressNeedsNameAtAndADotWithTwoCharactersBehind()
{
    QVERIFY(IsValidEmail(u"a@b.co"_s));
    QVERIFY(!IsValidEmail(u"a@b.c"_s));
    QVERIFY(!IsValidEmail(u"@b.com"_s));
    QVERIFY(!IsValidEmail(u"a@b@c.com"_s));
    QVERIFY(!IsValidEmail(u"a@bcom"_s));
    QVERIFY(!IsValidEmail(u"a.b@c"_s));
    QVERIFY(!IsValidEmail(u"a.b@"_s));
    QVERIFY(!IsValidEmail(u"a.bcom"_s));
    QVERIFY(!IsValidEmail(u"a@b."_s));
}

void TestModMain::spaceInAnAddressIsNotChecked()
{
    QVERIFY(IsValidEmail(u"john smith@example.com"_s));
    QVERIFY(IsValidEmail(u" a@b.com "_s));
}

void TestModMain::addressWithAForbiddenCharacterIsInvalid_data()
{
    QTest::addColumn<QString>("address");
    for (const QString &address : {u"a@b.com,"_s, u"a%b@c.com"_s, u"a@b.com/x"_s, u"a\\b@c.com"_s,
                                   u"a*@b.com"_s, u",a@b.com"_s})
        QTest::newRow(qPrintable(address)) << address;
}

void TestModMain::addressWithAForbiddenCharacterIsInvalid()
{
    QFETCH(const QString, address);
    QVERIFY(!IsValidEmail(address));
}

void TestModMain::addressIsCheckedNoFurther_data()
{
    QTest::addColumn<QString>("address");
    for (const QString &address :
         {u"a@.com"_s, u"a@b.cd."_s, u"a@b..com"_s, u"a..b@c.com"_s, u"\"a\"@b.com"_s,
          u"<a@b.com>"_s, u"a;b@c.com"_s, u"è@bücher.example"_s, u"a#b@c.com"_s})
        QTest::newRow(qPrintable(address)) << address;
}

void TestModMain::addressIsCheckedNoFurther()
{
    QFETCH(const QString, address);
    QVERIFY(IsValidEmail(address));
}

void TestModMain::emptyTextIsNoAddress()
{
    QVERIFY(!IsValidEmail({}));
    QVERIFY(!IsValidEmail(u"@"_s));
}

void TestModMain::onlyTheFirstDotBehindTheAtCounts()
{
    QVERIFY(IsValidEmail(u"a@b.c."_s));
    QVERIFY(IsValidEmail(u"a@b.c.d"_s));
    QVERIFY(!IsValidEmail(u"a@bc.d"_s));
}

void TestModMain::wrapOfANetworkPathKeepsTheServer()
{
    QCOMPARE(Wrap(u"\\\\server\\share\\dir\\f.txt"_s, 15), u"\\\\server\\...\\f.txt"_s);
}

void TestModMain::wrapStopsWhenNoFolderIsLeft()
{
    QCOMPARE(Wrap(u"C:\\a\\b\\c\\file.txt"_s, 10), u"C:\\...\\file.txt"_s);
}

void TestModMain::wrapStopsAsSoonAsThePathFits()
{
    const QString path = u"C:\\documents\\letters\\spring\\file.txt"_s;
    QCOMPARE(Wrap(path, 36), path);
    QCOMPARE(Wrap(path, 35), u"C:\\...\\letters\\spring\\file.txt"_s);
    QCOMPARE(Wrap(path, 30), u"C:\\...\\letters\\spring\\file.txt"_s);
    QCOMPARE(Wrap(path, 29), u"C:\\...\\spring\\file.txt"_s);
}

void TestModMain::wrapGoesOnWhenAShortFolderMakesItLonger()
{
    QCOMPARE(Wrap(u"C:\\a\\file.txt"_s, 12), u"C:\\...\\file.txt"_s);
}

void TestModMain::wrapLeavesWhatFitsOrHasNoFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("length");
    QTest::newRow("empty") << u""_s << 0;
    QTest::newRow("no separator") << u"a-long-file-name.txt"_s << 5;
    QTest::newRow("short enough") << u"C:\\a\\b.txt"_s << 60;
    QTest::newRow("as long as it may be") << u"C:\\a\\b.txt"_s << 10;
    QTest::newRow("root and file alone") << u"C:\\a-long-file-name.txt"_s << 5;
    QTest::newRow("native root and file") << u"/a-long-file-name.txt"_s << 5;
}

void TestModMain::wrapLeavesWhatFitsOrHasNoFolder()
{
    QFETCH(const QString, path);
    QFETCH(const int, length);
    QCOMPARE(Wrap(path, static_cast<qint16>(length)), path);
}

void TestModMain::wrapOfANativePathFollowsItsSeparator_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("shown");
    const QString path = u"/home/mario/letters/file.txt"_s;
    QTest::newRow("fits") << path << 28 << path;
    QTest::newRow("one folder") << path << 27 << u"/.../mario/letters/file.txt"_s;
    QTest::newRow("two folders") << path << 26 << u"/.../letters/file.txt"_s;
    QTest::newRow("all folders") << path << 10 << u"/.../file.txt"_s;
    QTest::newRow("backslash is a letter")
        << u"/home/a\\b\\c/file.txt"_s << 15 << u"/.../file.txt"_s;
}

void TestModMain::wrapOfANativePathFollowsItsSeparator()
{
    QFETCH(const QString, path);
    QFETCH(const int, length);
    QFETCH(const QString, shown);
    QCOMPARE(Wrap(path, static_cast<qint16>(length)), shown);
}

void TestModMain::folderAndFileName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::newRow("file") << u"C:\\site\\index.htm"_s << u"C:\\site\\"_s << u"index.htm"_s;
    QTest::newRow("root") << u"C:\\index.htm"_s << u"C:\\"_s << u"index.htm"_s;
    QTest::newRow("no folder") << u"index.htm"_s << u""_s << u"index.htm"_s;
    QTest::newRow("folder alone") << u"C:\\site\\"_s << u"C:\\site\\"_s << u""_s;
    QTest::newRow("slash is a letter") << u"C:\\a/b.txt"_s << u"C:\\"_s << u"a/b.txt"_s;
    QTest::newRow("empty") << u""_s << u""_s << u""_s;
    QTest::newRow("native") << u"/home/mario/a.txt"_s << u"/home/mario/"_s << u"a.txt"_s;
    QTest::newRow("native root") << u"/a.txt"_s << u"/"_s << u"a.txt"_s;
    QTest::newRow("native with backslash") << u"/home/a\\b.txt"_s << u"/home/"_s << u"a\\b.txt"_s;
}

void TestModMain::folderAndFileName()
{
    QFETCH(const QString, path);
    QFETCH(const QString, folder);
    QFETCH(const QString, name);
    QCOMPARE(FolderOf(path), folder);
    QCOMPARE(fileNameOf(path), name);
}

void TestModMain::sizeOfAFile()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"empty"_s), {});
    writeFile(folder.filePath(u"1536"_s), QByteArray(1536, 'x'));
    QCOMPARE(FileSizeOf(folder.filePath(u"empty"_s)), 0);
    QCOMPARE(FileSizeOf(folder.filePath(u"1536"_s)), 1536);
}

void TestModMain::sizeOfAFileWrittenWithBackslashes()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"site"_s));
    writeFile(folder.filePath(u"site/a.gif"_s), "12345");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    const qint32 size = FileSizeOf(u"site\\a.gif"_s);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(size, 5);
}

void TestModMain::sizeOfWhatIsNoFileIsMinusOne_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"/missing"_s;
    QTest::newRow("folder") << u""_s;
    QTest::newRow("pipe") << u"/pipe"_s;
}

void TestModMain::sizeOfWhatIsNoFileIsMinusOne()
{
    QFETCH(const QString, name);
    const QTemporaryDir folder;
    QCOMPARE(::mkfifo(qPrintable(folder.filePath(u"pipe"_s)), 0600), 0);
    QCOMPARE(FileSizeOf(folder.path() + name), -1);
    QCOMPARE(FileSizeOf({}), -1);
}

void TestModMain::sizeOfAFileThatCannotBeOpenedIsMinusOne()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"private"_s);
    writeFile(path, "secret");
    QCOMPARE(::chmod(qPrintable(folder.path()), 0755), 0);
    QCOMPARE(::chmod(qPrintable(path), 0), 0);
    const AsNobody nobody;
    QCOMPARE(FileSizeOf(path), -1);
}

void TestModMain::sizeOfLargeFilesIsTheLow32Bits()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"large"_s);
    constexpr qint64 GiB = Q_INT64_C(1) << 30;
    makeSparseFile(path, 2 * GiB - 1);
    QCOMPARE(FileSizeOf(path), 2147483647);
    makeSparseFile(path, 2 * GiB);
    QCOMPARE(FileSizeOf(path), -2147483647 - 1);
    makeSparseFile(path, 4 * GiB + 5);
    QCOMPARE(FileSizeOf(path), 5);
}

void TestModMain::nameIsPutBelowTheProgramFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("path");
    QTest::newRow("name") << u"rubrica.txt"_s << u"C:\\Sorvanta"_s
                          << u"C:\\Sorvanta\\rubrica.txt"_s;
    QTest::newRow("with drive") << u"D:\\r.txt"_s << u"C:\\Sorvanta"_s << u"D:\\r.txt"_s;
    QTest::newRow("network") << u"\\\\server\\r.txt"_s << u"C:\\Sorvanta"_s
                             << u"\\\\server\\r.txt"_s;
    QTest::newRow("native folder")
        << u"rubrica.txt"_s << u"/opt/sorvanta"_s << u"/opt/sorvanta/rubrica.txt"_s;
    QTest::newRow("folders below")
        << u"books\\r.txt"_s << u"/opt/sorvanta"_s << u"/opt/sorvanta/books/r.txt"_s;
    QTest::newRow("native") << u"/home/r.txt"_s << u"/opt/sorvanta"_s << u"/home/r.txt"_s;
    QTest::newRow("one letter") << u"r"_s << u"C:\\Sorvanta"_s << u"C:\\Sorvanta\\r"_s;
}

void TestModMain::nameIsPutBelowTheProgramFolder()
{
    QFETCH(const QString, name);
    QFETCH(const QString, folder);
    QFETCH(const QString, path);
    QCOMPARE(ResolveProgramPath(name, folder), path);
}

void TestModMain::joinedPaths_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::newRow("native") << u"/home"_s << u"a.txt"_s << u"/home/a.txt"_s;
    QTest::newRow("separator is there") << u"/home/"_s << u"a.txt"_s << u"/home/a.txt"_s;
    QTest::newRow("native, folders below") << u"/home"_s << u"x\\a.txt"_s << u"/home/x/a.txt"_s;
    QTest::newRow("drive") << u"C:\\site"_s << u"a.txt"_s << u"C:\\site\\a.txt"_s;
    QTest::newRow("drive, root") << u"C:\\"_s << u"img/a.gif"_s << u"C:\\img/a.gif"_s;
}

void TestModMain::joinedPaths()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, name);
    QFETCH(const QString, path);
    QCOMPARE(joinPath(folder, name), path);
}
