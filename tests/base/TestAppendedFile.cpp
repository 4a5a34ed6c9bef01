#include "TestAppendedFile.h"

#include "base/AppendedFile.h"
#include "support/DiskFiles.h"
#include "support/FileSizeLimit.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestAppendedFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(u"lines.txt"_s);
    writeFile(m_path, "one\n");
}

void TestAppendedFile::whatIsAppendedStandsBehindWhatWasThere()
{
    auto file = AppendedFile::open(m_path);
    QVERIFY(file);
    QVERIFY(file->append("two\n"));
    QVERIFY(file->append("three\n"));
    QCOMPARE(readFile(m_path), QByteArray("one\ntwo\nthree\n"));
}

void TestAppendedFile::aFileThatIsMissingIsNotMade()
{
    const QString missing = m_folder->filePath(u"missing.txt"_s);
    const auto file = AppendedFile::open(missing);
    QVERIFY(!file);
    QCOMPARE(file.error().path, missing);
    QVERIFY(!file.error().reason.isEmpty());
    QVERIFY(!QFile::exists(missing));
}

void TestAppendedFile::aLineThatFindsNoRoomLeavesNothingBehind()
{
    auto file = AppendedFile::open(m_path);
    {
        const FileSizeLimit full(6);
        const auto appended = file->append("two\n");
        QVERIFY(!appended);
        QCOMPARE(appended.error().reason, u"File too large"_s);
        QCOMPARE(readFile(m_path), QByteArray("one\n"));
    }
    QVERIFY(file->append("three\n"));
    QCOMPARE(readFile(m_path), QByteArray("one\nthree\n"));
}

void TestAppendedFile::theDiskJobOutlivesTheFile()
{
    AppendedFile::DiskJob job;
    {
        auto file = AppendedFile::open(m_path);
        QVERIFY(file->append("two\n"));
        job = file->diskJob();
    }
    QVERIFY(job());
}
