#include "TestJournalFile.h"

#include "support/DiskFiles.h"
#include "support/FileSizeLimit.h"

#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

void TestJournalFile::init()
{
    m_file.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_clock = std::make_unique<FakeClock>();
    m_sync = std::make_unique<FakeDiskSync>();
    m_file =
        std::make_shared<JournalFile>(m_folder->filePath(u"a.run"_s), nullptr, *m_clock, *m_sync);
    QVERIFY(m_file->begin("head\n"));
}

void TestJournalFile::whatIsAppendedIsInTheFileAtOnce()
{
    QVERIFY(m_file->append("one\n"));
    QCOMPARE(readFile(m_file->path()), QByteArray("head\none\n"));
}

void TestJournalFile::oneDiskJobServesAllLinesThatWereGathered()
{
    QVERIFY(m_file->append("one\n"));
    QVERIFY(m_file->append("two\n"));
    QCOMPARE(m_sync->jobs(), 1);
    m_sync->start();
    m_sync->finish();
    QCOMPARE(m_sync->jobs(), 0);
}

void TestJournalFile::linesAppendedUnderAJobGetTheNextOne()
{
    QVERIFY(m_file->append("one\n"));
    m_sync->start();
    QVERIFY(m_file->append("two\n"));
    QCOMPARE(m_sync->jobs(), 1);
    m_sync->finish();
    QCOMPARE(m_sync->jobs(), 1);
}

void TestJournalFile::aLineMayWaitForTheDiskFor50Milliseconds()
{
    QVERIFY(m_file->isCaughtUp());
    QVERIFY(m_file->append("one\n"));
    m_clock->advanceMilliseconds(50);
    QVERIFY(m_file->isCaughtUp());
    m_clock->advanceMilliseconds(1);
    QVERIFY(!m_file->isCaughtUp());
    m_sync->start();
    QVERIFY(!m_file->isCaughtUp());
    QVERIFY(m_file->append("two\n"));
    m_sync->finish();
    QVERIFY(m_file->isCaughtUp());
    m_clock->advanceMilliseconds(51); // the second one's time
    QVERIFY(!m_file->isCaughtUp());
}

void TestJournalFile::whoWaitsIsCalledWhenTheDiskHasCaughtUp()
{
    QVERIFY(m_file->append("one\n"));
    m_sync->start();
    m_clock->advanceMilliseconds(20);
    QVERIFY(m_file->append("two\n"));
    m_clock->advanceMilliseconds(40);
    int calls = 0;
    m_file->whenCaughtUp([&calls] { ++calls; });
    m_clock->advanceMilliseconds(20);
    m_sync->finish(); // the second line has waited for 60 ms by now
    QCOMPARE(calls, 0);
    m_sync->start();
    m_sync->finish();
    QCOMPARE(calls, 1);
    QVERIFY(m_file->append("three\n"));
    m_sync->start();
    m_sync->finish();
    QCOMPARE(calls, 1);
}

void TestJournalFile::aDiskThatFailsIsSaidWithTheNextLine()
{
    QVERIFY(m_file->append("one\n"));
    int calls = 0;
    m_clock->advanceMilliseconds(60);
    m_file->whenCaughtUp([&calls] { ++calls; });
    m_sync->start();
    m_sync->finish(tl::unexpected(FileError{m_file->path(), u"the disk is broken"_s}));
    QCOMPARE(calls, 1);
    const auto appended = m_file->append("two\n");
    QVERIFY(!appended);
    QCOMPARE(appended.error().reason, u"the disk is broken"_s);
    QCOMPARE(readFile(m_file->path()), QByteArray("head\none\n"));
}

void TestJournalFile::aLineThatFoundNoRoomComesWithTheNext()
{
    {
        const FileSizeLimit full(7);
        m_file->appendNowOrLater("one\n");
        QCOMPARE(readFile(m_file->path()), QByteArray("head\n"));
        // This one is about what did not come to pass.
        QVERIFY(!m_file->append("two\n"));
    }
    QVERIFY(m_file->append("three\n"));
    QCOMPARE(readFile(m_file->path()), QByteArray("head\none\nthree\n"));
}

void TestJournalFile::aFileBegunAnewHoldsNothingElse()
{
    QVERIFY(m_file->append("one\n"));
    QVERIFY(m_file->begin("other\n"));
    QVERIFY(m_file->append("two\n"));
    QCOMPARE(readFile(m_file->path()), QByteArray("other\ntwo\n"));
}

void TestJournalFile::whatTheDiskSaysOfAnEarlierContentIsPast()
{
    QVERIFY(m_file->append("one\n"));
    m_sync->start();
    QVERIFY(m_file->begin("other\n"));
    QVERIFY(m_file->append("two\n"));
    QCOMPARE(m_sync->jobs(), 2);
    m_sync->finish(tl::unexpected(FileError{m_file->path(), u"the old disk is broken"_s}));
    QVERIFY(m_file->append("three\n"));
    m_clock->advanceMilliseconds(51);
    QVERIFY(!m_file->isCaughtUp());
    m_sync->start();
    m_sync->finish();
    QVERIFY(m_file->isCaughtUp());
}

void TestJournalFile::theRealDiskDoesItsJobInAnotherThread()
{
    GroupedSync sync;
    bool hasBegun = false;
    std::optional<tl::expected<void, FileError>> result;
    QThread *worker = QThread::currentThread();
    sync.begin(
        [&worker]() -> tl::expected<void, FileError> {
            worker = QThread::currentThread();
            return tl::unexpected(FileError{u"/a"_s, u"no"_s});
        },
        [&hasBegun] { hasBegun = true; },
        [&](const auto &given) {
            QVERIFY(QThread::currentThread() == thread());
            result = given;
        });
    QVERIFY(!hasBegun);
    QTRY_VERIFY(result);
    QVERIFY(hasBegun);
    QVERIFY(worker != QThread::currentThread());
    QVERIFY(!*result);
}
