#include "TestLog.h"

#include "log/CLog.h"
#include "support/AsNobody.h"
#include "support/DiskFiles.h"
#include "support/FileSizeLimit.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Separator = "\r\n" + QByteArray(50, '-') + "\r\n";
// The clock of the tests stands at this moment.
const QByteArray Stamp = "21/11/2026 09:00:00  ";
const QByteArray Started = Stamp + "Program started...\r\n";
const QByteArray Ended = Stamp + "Program ended...\r\n";

} // namespace

void TestLog::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QCOMPARE(::chmod(qPrintable(m_folder->path()), 0755), 0);
    m_clock = std::make_unique<FakeClock>();
}

QString TestLog::path(const QString &name) const
{
    return m_folder->filePath(name);
}

void TestLog::firstRunInAMonthMakesANewFile()
{
    const CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{u"11-2026.log"_s});
    QCOMPARE(readFile(path()), Separator + Started);
}

void TestLog::secondRunInTheSameMonthBeginsOnTheLastByte()
{
    {
        const CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    }
    const QByteArray first = readFile(path());
    QVERIFY(first.endsWith("\r\n"));
    const CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    // CR CR LF before the hyphens; nothing else of the old content changes.
    QCOMPARE(readFile(path()), first.chopped(1) + Separator + Started);
}

void TestLog::lastByteIsOverwrittenWhateverItIs()
{
    writeFile(path(), "x");
    const CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    QCOMPARE(readFile(path()), Separator + Started);
}

void TestLog::orderlyEndIsWritten()
{
    {
        const CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    }
    QCOMPARE(readFile(path()), Separator + Started + Ended);
}

void TestLog::lineIsDateTimeAndText()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    AppLog.WriteMessage(u"Message file 'è.txt' loaded"_s);
    QCOMPARE(readFile(path()), Separator + Started + Stamp + "Message file '\xE8.txt' loaded\r\n");
}

void TestLog::stampFollowsTheClock()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    m_clock->advanceMilliseconds(999);
    AppLog.WriteMessage(u"same second"_s);
    m_clock->advanceMilliseconds(1);
    AppLog.WriteMessage(u"next second"_s);
    m_clock->advanceMilliseconds(-1000);
    AppLog.WriteMessage(u"set back"_s);
    m_clock->advanceMilliseconds(15 * 3600 * 1000);
    AppLog.WriteMessage(u"next day"_s);
    QCOMPARE(readFile(path()), Separator + Started + Stamp + "same second\r\n" +
                                   "21/11/2026 09:00:01  next second\r\n" + Stamp + "set back\r\n" +
                                   "22/11/2026 00:00:00  next day\r\n");
}

void TestLog::textWithLineEndsIsWrittenAsItIs()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    AppLog.WriteMessage(u"one\r\ntwo"_s);
    QCOMPARE(readFile(path()), Separator + Started + Stamp + "one\r\ntwo\r\n");
}

void TestLog::runOverTheEndOfAMonthStaysInItsFile()
{
    m_clock->setUtc(QDateTime(QDate(2026, 11, 30), QTime(22, 59, 59), Qt::UTC));
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    m_clock->advanceMilliseconds(1000);
    AppLog.WriteMessage(u"later"_s);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{u"11-2026.log"_s});
    QCOMPARE(readFile(path()), Separator + "30/11/2026 23:59:59  Program started...\r\n" +
                                   "01/12/2026 00:00:00  later\r\n");
}

void TestLog::eachMonthHasItsFile()
{
    m_clock->setUtc(QDateTime(QDate(2002, 3, 1), QTime(12, 0), Qt::UTC));
    const CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    QVERIFY(QFile::exists(path(u"03-2002.log"_s)));
}

void TestLog::everyLineIsInTheFileAtOnce()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    for (int i = 0; i < 3; ++i) {
        const qsizetype before = readFile(path()).size();
        AppLog.WriteMessage(u"line"_s);
        QCOMPARE(readFile(path()).size(), before + Stamp.size() + 6);
    }
}

void TestLog::textBeyondTheCodePageIsUtf8InItsLine()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    AppLog.WriteMessage(u"Łukasz"_s);
    AppLog.WriteMessage(u"Niccolò"_s);
    QCOMPARE(readFile(path()),
             Separator + Started + Stamp + "\xC5\x81ukasz\r\n" + Stamp + "Niccol\xF2\r\n");
}

void TestLog::wholeLogIsReadAfterWhatWasThere()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    const QString longText(1000, u'x'); // more than one block of 255
    AppLog.WriteMessage(longText);
    QString text = u"before "_s;
    AppLog.GetLog(text);
    const QString expected = QString::fromLatin1(Separator + Started + Stamp) + longText;
    QCOMPARE(text, u"before "_s + expected + u"\r\n"_s);
}

void TestLog::eachLineReadsBackAsItWasWritten()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    // "Ã©" in the code page would read as UTF-8; the line behind it would not.
    const QStringList written{u"Niccolò"_s, u"Łukasz è qui"_s, u"Ã©"_s, u"Ã©\r\nNiccolò"_s,
                              u"Łukasz\r\n\r\n\uFEFFÃ©\nò"_s};
    QString expected = QString::fromLatin1(Separator + Started);
    for (const QString &text : written) {
        AppLog.WriteMessage(text);
        expected += QString::fromLatin1(Stamp) + text + u"\r\n"_s;
    }
    QString read;
    AppLog.GetLog(read);
    QCOMPARE(read, expected);
}

void TestLog::readingLeavesTheEndWhereItWas()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    QString text;
    AppLog.GetLog(text);
    AppLog.WriteMessage(u"after"_s);
    QCOMPARE(readFile(path()), Separator + Started + Stamp + "after\r\n");
}

void TestLog::emptyFileLeavesTheTextUnchanged()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    writeFile(path(), {});
    QString text = u"unchanged"_s;
    AppLog.GetLog(text);
    QCOMPARE(text, u"unchanged"_s);
}

void TestLog::logThatCannotBeOpenedSwallowsEverything_data()
{
    QTest::addColumn<bool>("folderExists");
    QTest::newRow("there is no such folder") << false;
    QTest::newRow("a folder has the log's name") << true;
}

void TestLog::logThatCannotBeOpenedSwallowsEverything()
{
    QFETCH(const bool, folderExists);
    const QString folder = folderExists ? m_folder->path() : path(u"missing"_s);
    if (folderExists)
        QVERIFY(QDir(m_folder->path()).mkdir(u"11-2026.log"_s));
    QString text = u"unchanged"_s;
    {
        CLog AppLog(folder, *m_clock, m_formats, m_codePage);
        AppLog.WriteMessage(u"lost"_s);
        AppLog.GetLog(text);
    }
    QCOMPARE(text, u"unchanged"_s);
    QVERIFY(QDir(m_folder->path()).entryList(QDir::Files).isEmpty());
}

void TestLog::logThatMayNotBeWrittenSwallowsEverything()
{
    writeFile(path(), "of someone else\r\n");
    QCOMPARE(::chmod(qPrintable(path()), 0444), 0);
    {
        const AsNobody nobody;
        CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
        AppLog.WriteMessage(u"lost"_s);
    }
    QCOMPARE(readFile(path()), "of someone else\r\n"_ba);
}

void TestLog::lineThatFindsNoRoomLeavesTheLogAsItWas()
{
    CLog AppLog(m_folder->path(), *m_clock, m_formats, m_codePage);
    const QByteArray before = readFile(path());
    const QByteArray line = Stamp + "first\r\nsecond\r\n";
    forEachFullDisk(before.size() + line.size(), [&](rlim_t room) {
        {
            const FileSizeLimit full(room);
            AppLog.WriteMessage(u"first\r\nsecond"_s);
        }
        QCOMPARE(readFile(path()), before);
    });
    AppLog.WriteMessage(u"first\r\nsecond"_s);
    QCOMPARE(readFile(path()), before + line);
}

void TestLog::sessionThatFoundNoRoomBeginsWithTheFirstLineThatDoes_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("kept");
    QTest::newRow("first session of the month") << ""_ba
                                                << ""_ba;
    QTest::newRow("behind another one")
        << Separator + Started + Ended << (Separator + Started + Ended).chopped(1);
}

void TestLog::sessionThatFoundNoRoomBeginsWithTheFirstLineThatDoes()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, kept);
    forEachFullDisk((kept + Separator + Started).size(), [&](rlim_t room) {
        writeFile(path(), before);
        std::optional<CLog> AppLog;
        {
            const FileSizeLimit full(room);
            AppLog.emplace(m_folder->path(), *m_clock, m_formats, m_codePage);
        }
        QCOMPARE(readFile(path()), before);
        AppLog->WriteMessage(u"there is room again"_s);
        AppLog.reset();
        QCOMPARE(readFile(path()), kept + Separator + Stamp + "there is room again\r\n" + Ended);
    });
}

void TestLog::logWithoutAFileLeavesNoTrace()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QString text = u"unchanged"_s;
    {
        CLog AppLog(*m_clock, m_formats, m_codePage);
        AppLog.WriteMessage(u"nowhere"_s);
        AppLog.GetLog(text);
    }
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(text, u"unchanged"_s);
    QVERIFY(QDir(m_folder->path()).isEmpty());
}
