#include "TestFiles.h"

#include "base/Files.h"
#include "support/AsNobody.h"
#include "support/DiskFiles.h"
#include "support/FileSizeLimit.h"
#include "support/ItalianTexts.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

void TestFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QCOMPARE(::chmod(qPrintable(m_folder->path()), 0755), 0);
}

void TestFiles::fileIsReadAsItIs_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("line ends and NUL") << QByteArray("a\r\nb\n\0c\r", 8);
    QTest::newRow("a megabyte") << QByteArray(1'000'000, '\xE8');
}

void TestFiles::fileIsReadAsItIs()
{
    QFETCH(const QByteArray, content);
    writeFile(path(u"file"_s), content);
    const auto read = readWholeFile(path(u"file"_s));
    QVERIFY(read.has_value());
    QCOMPARE(*read, content);
}

void TestFiles::missingFileIsRefused()
{
    for (const QString &name : {path(u"missing"_s), path(u"no/such/folder"_s), QString()}) {
        const auto read = readWholeFile(name);
        QVERIFY(!read);
        QCOMPARE(read.error().path, name);
        QCOMPARE(read.error().reason, u"the file does not exist"_s);
    }
}

void TestFiles::folderIsRefused()
{
    const auto read = readWholeFile(m_folder->path());
    QVERIFY(!read);
    QCOMPARE(read.error().reason, u"it is a folder"_s);
}

void TestFiles::pipeIsRefused()
{
    QCOMPARE(::mkfifo(qPrintable(path(u"pipe"_s)), 0600), 0);
    const auto read = readWholeFile(path(u"pipe"_s));
    QVERIFY(!read);
    QCOMPARE(read.error().reason, u"it is not a regular file"_s);
}

void TestFiles::unreadableFileIsRefusedWithTheSystemsReason()
{
    writeFile(path(u"private"_s), "secret");
    QCOMPARE(::chmod(qPrintable(path(u"private"_s)), 0), 0);
    const AsNobody nobody;
    const auto read = readWholeFile(path(u"private"_s));
    QVERIFY(!read);
    QCOMPARE(read.error().path, path(u"private"_s));
    QCOMPARE(read.error().reason, u"Permission denied"_s);
}

void TestFiles::reasonsAreItalianInItalian()
{
    const ItalianTexts italian;
    QCOMPARE(::mkfifo(qPrintable(path(u"pipe"_s)), 0600), 0);
    QCOMPARE(readWholeFile(path(u"missing"_s)).error().reason, u"il file non esiste"_s);
    QCOMPARE(readWholeFile(m_folder->path()).error().reason, u"è una cartella"_s);
    QCOMPARE(readWholeFile(path(u"pipe"_s)).error().reason, u"non è un file normale"_s);
}

void TestFiles::errorIsOneLineOfPathAndReason()
{
    const FileError error{u"C:\\a.txt"_s, u"it is a folder"_s};
    QCOMPARE(error.toText(), u"C:\\a.txt: it is a folder"_s);
}

void TestFiles::relativeNameIsOpenedWithTheSystemsSeparator()
{
    QCOMPARE(systemPath(u"site\\a.gif"_s), u"site/a.gif"_s);
    QCOMPARE(systemPath(u"/site/a\\b.gif"_s), u"/site/a\\b.gif"_s);
    QCOMPARE(systemPath({}), QString());
}

void TestFiles::existingFileIsAFileAndNoFolder()
{
    writeFile(path(u"file"_s), {});
    QVERIFY(isExistingFile(path(u"file"_s)));
    QVERIFY(!isExistingFile(path(u"missing"_s)));
    QVERIFY(!isExistingFile(m_folder->path()));
    QVERIFY(!isExistingFile({}));
}

void TestFiles::newFileIsWritten()
{
    QVERIFY(replaceWholeFile(path(u"new"_s), "a\r\nb\n").has_value());
    QCOMPARE(readFile(path(u"new"_s)), "a\r\nb\n"_ba);
    QVERIFY(replaceWholeFile(path(u"empty"_s), {}).has_value());
    QCOMPARE(readFile(path(u"empty"_s)), QByteArray());
}

void TestFiles::oldFileIsReplacedWhole()
{
    writeFile(path(u"file"_s), "a long old content");
    QVERIFY(replaceWholeFile(path(u"file"_s), "new").has_value());
    QCOMPARE(readFile(path(u"file"_s)), "new"_ba);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"file"_s});
}

void TestFiles::fileInAMissingFolderIsNotWritten()
{
    for (const QString &name : {path(u"no/such/file"_s), QString()}) {
        const auto written = replaceWholeFile(name, "new");
        QVERIFY(!written);
        QCOMPARE(written.error().path, name);
        QVERIFY(!written.error().reason.isEmpty());
    }
}

void TestFiles::folderIsNotReplaced()
{
    const auto written = replaceWholeFile(m_folder->path(), "new");
    QVERIFY(!written);
    QVERIFY(!written.error().reason.isEmpty());
    QVERIFY(QFileInfo(m_folder->path()).isDir());
}

void TestFiles::fullDiskKeepsTheOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("held back until its end") << 5000;
    QTest::newRow("written in parts") << 100'000;
}

void TestFiles::fullDiskKeepsTheOldFile()
{
    QFETCH(const int, size);
    writeFile(path(u"file"_s), "old");
    const QByteArray content(size, 'x');
    forEachFullDisk(size, [&](rlim_t room) {
        // Checked when there is room again: what a failing check says is written to a file, too.
        const auto written = [&] {
            const FileSizeLimit full(room);
            return replaceWholeFile(path(u"file"_s), content);
        }();
        QVERIFY(!written);
        QCOMPARE(written.error().path, path(u"file"_s));
        QCOMPARE(written.error().reason, u"File too large"_s);
        QCOMPARE(readFile(path(u"file"_s)), "old"_ba);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"file"_s});
    });
    QVERIFY(replaceWholeFile(path(u"file"_s), content));
    QCOMPARE(readFile(path(u"file"_s)), content);
}

void TestFiles::folderThatMayNotBeWrittenKeepsTheOldFile()
{
    writeFile(path(u"file"_s), "old");
    QCOMPARE(::chmod(qPrintable(m_folder->path()), 0555), 0);
    {
        const AsNobody nobody;
        QVERIFY(!replaceWholeFile(path(u"file"_s), "new"));
    }
    QCOMPARE(::chmod(qPrintable(m_folder->path()), 0755), 0);
    QCOMPARE(readFile(path(u"file"_s)), "old"_ba);
}

void TestFiles::symbolicLinkStaysALink()
{
    writeFile(path(u"file"_s), "old");
    QVERIFY(QFile::link(path(u"file"_s), path(u"link"_s)));
    QVERIFY(replaceWholeFile(path(u"link"_s), "new").has_value());
    QVERIFY(QFileInfo(path(u"link"_s)).isSymbolicLink());
    QCOMPARE(readFile(path(u"file"_s)), "new"_ba);
}

void TestFiles::permissionsOfTheFileStay()
{
    writeFile(path(u"file"_s), "old");
    QCOMPARE(::chmod(qPrintable(path(u"file"_s)), 0640), 0);
    QVERIFY(replaceWholeFile(path(u"file"_s), "new").has_value());
    struct stat entry
    {};
    QCOMPARE(::stat(qPrintable(path(u"file"_s)), &entry), 0);
    QCOMPARE(entry.st_mode & 0777U, 0640U);
}

void TestFiles::aTextThatOnlyBeginsAsUtf8IsNotRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.txt"));
    for (const QByteArray &content : {QByteArray(), QByteArray("Zo\xEB"), QByteArray("Zo\xC3\xAB"),
                                      QByteArray("\xEF\xBB\xBFZo\xC3\xAB")}) {
        writeFile(path, content);
        const auto read = readTextFile(path);
        QVERIFY(read.has_value());
        QCOMPARE(*read, content);
    }
    writeFile(path, "\xEF\xBB\xBFZo\xEB");
    const auto broken = readTextFile(path);
    QVERIFY(!broken);
    QCOMPARE(broken.error().path, path);
    QVERIFY(!broken.error().reason.isEmpty());
    QVERIFY(!readTextFile(folder.path()));
}
