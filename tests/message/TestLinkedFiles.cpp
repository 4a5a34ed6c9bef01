#include "TestLinkedFiles.h"

#include "message/LinkedFiles.h"
#include "support/DiskFiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList linksIn(const QString &text)
{
    QStringList found;
    auto link = findLink(text, 0).link;
    while (link) {
        found += text.sliced(link->start, link->length);
        link = findLink(text, link->start + 1).link;
    }
    return found;
}

} // namespace

void TestLinkedFiles::links_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("none") << u"<p>no picture</p>"_s << QStringList();
    QTest::newRow("empty text") << u""_s << QStringList();
    QTest::newRow("one") << u"<img src=\"a.gif\">"_s << QStringList{u"a.gif"_s};
    QTest::newRow("two") << u"src=\"a.gif\" src=\"b.gif\""_s << QStringList{u"a.gif"_s, u"b.gif"_s};
    QTest::newRow("single quotes") << u"src='a.gif' alt=\"x\""_s << QStringList{u"a.gif' alt="_s};
    QTest::newRow("no quote: a letter is skipped")
        << u"src=a.gif alt=\"x\""_s << QStringList{u".gif alt="_s};
    QTest::newRow("blank behind the sign") << u"src= \"a.gif\""_s << QStringList{u""_s};
    QTest::newRow("blank before the sign is none") << u"src =\"a.gif\""_s << QStringList();
    QTest::newRow("empty") << u"src=\"\""_s << QStringList{u""_s};
    QTest::newRow("over lines") << u"src=\"a\r\nb\""_s << QStringList{u"a\r\nb"_s};
    QTest::newRow("in a link") << u"src=\"xsrc=\"b\""_s << QStringList{u"xsrc="_s, u"b"_s};
}

void TestLinkedFiles::links()
{
    QFETCH(const QString, text);
    QFETCH(const QStringList, found);
    QCOMPARE(linksIn(text), found);
}

void TestLinkedFiles::linkWithoutItsEndIsUnclosed()
{
    for (const QString &text : {u"src="_s, u"src=\""_s, u"src=\"a.gif"_s}) {
        const LinkSearch search = findLink(text, 0);
        QVERIFY(!search.link);
        QVERIFY(search.unclosed);
    }
    QVERIFY(!findLink(u"src=\"a\"", 1).unclosed);
    QVERIFY(!findLink(u"sr", 0).unclosed);
}

void TestLinkedFiles::lowerCaseKeepsEveryPlace()
{
    QCOMPARE(lowerCaseInPlace(u"<IMG SRC=\"È.GIF\">"_s), u"<img src=\"è.gif\">"_s);
    // Letters whose lower case would be longer.
    const QString text = u"İ Σ ẞ 😀 SRC="_s;
    QCOMPARE(lowerCaseInPlace(text).size(), text.size());
    QVERIFY(lowerCaseInPlace(text).endsWith(u"src="_s));
}

void TestLinkedFiles::linksThatStayBelow_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("stays");
    QTest::newRow("file") << u"a.gif"_s << true;
    QTest::newRow("subfolder") << u"img/a.gif"_s << true;
    QTest::newRow("two dots in a name") << u"a..gif"_s << true;
    QTest::newRow("three dots") << u".../a.gif"_s << true;
    QTest::newRow("absolute") << u"/etc/passwd"_s << true; // joined to the folder
    QTest::newRow("up") << u"../a.gif"_s << false;
    QTest::newRow("up with backslash") << u"..\\a.gif"_s << false;
    QTest::newRow("down and up") << u"img/../../a.gif"_s << false;
    QTest::newRow("mixed separators") << u"img\\../..\\a.gif"_s << false;
    QTest::newRow("up at the end") << u"img/.."_s << false;
    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("separators alone") << u"//\\"_s << false;
    QTest::newRow("NUL") << u"a\0.gif"_s << false;
}

void TestLinkedFiles::linksThatStayBelow()
{
    QFETCH(const QString, link);
    QFETCH(const bool, stays);
    QCOMPARE(staysBelow(link), stays);
}

void TestLinkedFiles::filesFound_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("found"); // empty: none
    QTest::newRow("file") << u"a.gif"_s << u"a.gif"_s;
    QTest::newRow("other letter case") << u"A.GIF"_s << u"a.gif"_s;
    QTest::newRow("file in capitals") << u"b.png"_s << u"B.PNG"_s;
    QTest::newRow("subfolder") << u"img/c.gif"_s << u"Img/c.gif"_s;
    QTest::newRow("backslash") << u"img\\c.gif"_s << u"Img/c.gif"_s;
    QTest::newRow("same folder") << u"./a.gif"_s << u"a.gif"_s;
    QTest::newRow("hidden") << u".d.gif"_s << u".d.gif"_s;
    QTest::newRow("accents") << u"È.gif"_s << u"è.gif"_s;
    QTest::newRow("missing") << u"x.gif"_s << u""_s;
    QTest::newRow("folder") << u"img"_s << u""_s;
    QTest::newRow("file as a folder") << u"a.gif/a.gif"_s << u""_s;
    QTest::newRow("question mark is a letter") << u"?.gif"_s << u""_s;
    QTest::newRow("star is a letter") << u"*.gif"_s << u""_s;
    QTest::newRow("file with a star") << u"e*.gif"_s << u"e*.gif"_s;
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("up, and the file exists") << u"../secret.gif"_s << u""_s;
    QTest::newRow("out and in again") << u"../site/a.gif"_s << u""_s;
    QTest::newRow("absolute") << u"/etc/passwd"_s << u""_s;
    QTest::newRow("web") << u"http://x.example/a.gif"_s << u""_s;
    QTest::newRow("drive") << u"c:\\pics\\p.gif"_s << u""_s;
    QTest::newRow("in the text itself") << u"data:image/gif;base64,R0lGODlhAQAB/w"_s << u""_s;
    QTest::newRow("NUL") << u"a.gif\0"_s << u""_s;
    QTest::newRow("longer than any name") << QString(100000, u'x') << u""_s;
}

void TestLinkedFiles::filesFound()
{
    QFETCH(const QString, link);
    QFETCH(const QString, found);
    const QTemporaryDir parent;
    QVERIFY(QDir(parent.path()).mkpath(u"site/Img"_s));
    writeFile(parent.filePath(u"secret.gif"_s), "x");
    for (const QString &name :
         {u"a.gif"_s, u"B.PNG"_s, u"Img/c.gif"_s, u".d.gif"_s, u"è.gif"_s, u"e*.gif"_s})
        writeFile(parent.filePath(u"site/"_s + name), "x");
    const QString site = parent.filePath(u"site/"_s);
    const QString path = findLinkedFile(site, link);
    QCOMPARE(path.isEmpty() ? path : QDir(site).relativeFilePath(path), found);
}

void TestLinkedFiles::exactLetterCaseComesFirst()
{
    const QTemporaryDir site;
    for (const QString &name : {u"A.gif"_s, u"a.GIF"_s, u"a.gif"_s})
        writeFile(site.filePath(name), "x");
    for (const QString &name : {u"A.gif"_s, u"a.GIF"_s, u"a.gif"_s})
        QCOMPARE(findLinkedFile(site.path(), name), site.filePath(name));
    QVERIFY(!findLinkedFile(site.path(), u"A.GIF").isEmpty());
}

void TestLinkedFiles::symbolicLinkOutOfTheFolderIsNoFile()
{
    const QTemporaryDir parent;
    QVERIFY(QDir(parent.path()).mkpath(u"site"_s));
    QVERIFY(QDir(parent.path()).mkpath(u"private"_s));
    // The beginning of the folder's name is not the folder.
    QVERIFY(QDir(parent.path()).mkpath(u"site-of-others"_s));
    writeFile(parent.filePath(u"private/a.gif"_s), "secret");
    writeFile(parent.filePath(u"site-of-others/a.gif"_s), "secret");
    const QString site = parent.filePath(u"site/"_s);
    QVERIFY(QFile::link(parent.filePath(u"private/a.gif"_s), site + u"file.gif"_s));
    QVERIFY(QFile::link(parent.filePath(u"private"_s), site + u"folder"_s));
    QVERIFY(QFile::link(parent.filePath(u"site-of-others"_s), site + u"others"_s));
    QVERIFY(QFile::link(parent.filePath(u"missing"_s), site + u"dangling.gif"_s));
    for (const QString &link :
         {u"file.gif"_s, u"folder/a.gif"_s, u"others/a.gif"_s, u"dangling.gif"_s})
        QCOMPARE(findLinkedFile(site, link), QString());
}

void TestLinkedFiles::symbolicLinkInsideTheFolderIsAFile()
{
    const QTemporaryDir site;
    QVERIFY(QDir(site.path()).mkpath(u"img"_s));
    writeFile(site.filePath(u"img/a.gif"_s), "x");
    QVERIFY(QFile::link(site.filePath(u"img/a.gif"_s), site.filePath(u"b.gif"_s)));
    QCOMPARE(findLinkedFile(site.path(), u"b.gif"), site.filePath(u"b.gif"_s));
}

void TestLinkedFiles::folderMayItselfBeReachedByASymbolicLink()
{
    const QTemporaryDir parent;
    QVERIFY(QDir(parent.path()).mkpath(u"site"_s));
    writeFile(parent.filePath(u"site/a.gif"_s), "x");
    QVERIFY(QFile::link(parent.filePath(u"site"_s), parent.filePath(u"link"_s)));
    QCOMPARE(findLinkedFile(parent.filePath(u"link/"_s), u"a.gif"),
             parent.filePath(u"link/a.gif"_s));
}

void TestLinkedFiles::folderThatIsMissingHasNoFiles()
{
    QCOMPARE(findLinkedFile(u"/no/such/folder/"_s, u"a.gif"), QString());
}

void TestLinkedFiles::relativeFolderIsFound_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("link");
    QTest::newRow("the present one") << u""_s << u"A.gif"_s;
    QTest::newRow("the present one by name") << u"./"_s << u"a.gif"_s;
    QTest::newRow("one below it") << u"site\\"_s << u"b.gif"_s;
}

void TestLinkedFiles::relativeFolderIsFound()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, link);
    const QTemporaryDir present;
    QVERIFY(QDir(present.path()).mkdir(u"site"_s));
    writeFile(present.filePath(u"a.gif"_s), "x");
    writeFile(present.filePath(u"site/B.gif"_s), "x");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(present.path()));
    const bool exists = QFileInfo(findLinkedFile(folder, link)).isFile();
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(exists);
}
