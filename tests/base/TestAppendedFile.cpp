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
    const QByteArray line = "the second\n";
    forEachFullDisk(readFile(m_path).size() + line.size(), [&](rlim_t room) {
        const auto appended = [&] {
            const FileSizeLimit full(room);
            return file->append(line);
        }();
        QVERIFY(!appended);
        QCOMPARE(appended.error().path, m_path);
        QCOMPARE(appended.error().reason, u"File too large"_s);
        QCOMPARE(readFile(m_path), QByteArray("one\n"));
    });
    QVERIFY(file->append(line));
    QCOMPARE(readFile(m_path), "one\n" + line);
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
