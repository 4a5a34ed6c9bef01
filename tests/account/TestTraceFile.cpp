#include "TestTraceFile.h"

#include "account/TraceFile.h"
#include "support/DiskFiles.h"
#include "support/FakeTime.h"
#include "support/FileSizeLimit.h"
#include "support/ScriptedPrompts.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class TraceAccounts : public ServerAccounts
{
public:
    [[nodiscard]] ServerAccount account(const QString &host) const override
    {
        ServerAccount account;
        account.writeTrace = host == u"traced"_s;
        return account;
    }
    void rememberStartTls(const ServerAddress &) override {}
};

struct Rig
{
    QTemporaryDir folder;
    QString path = folder.filePath(u"SMTP trace.txt"_s);
    FakeClock clock;
    ScriptedPrompts prompts;
    TraceFile trace{path, clock, prompts};
    ServerAddress server{u"smtp.example.org"_s, 587};
};

} // namespace

void TestTraceFile::linesSayWhenWithWhomAndWhoSpoke()
{
    Rig rig;
    rig.trace.line(rig.server, Speaker::Note, u"connected"_s);
    rig.clock.advanceMilliseconds(7);
    rig.trace.line(rig.server, Speaker::Server, u"220 grüß dich"_s);
    rig.clock.advanceMilliseconds(1116);
    rig.trace.line(rig.server, Speaker::Client, u"EHLO pc"_s);
    QCOMPARE(readFile(rig.path),
             "2026-11-21 09:00:00.000 smtp.example.org:587 -- connected\n"
             "2026-11-21 09:00:00.007 smtp.example.org:587 S: 220 gr\xc3\xbc\xc3\x9f dich\n"
             "2026-11-21 09:00:01.123 smtp.example.org:587 C: EHLO pc\n"_ba);
}

void TestTraceFile::lineIsInTheFileAtOnce()
{
    Rig rig;
    rig.trace.line(rig.server, Speaker::Client, u"QUIT"_s);
    QVERIFY(readFile(rig.path).endsWith("C: QUIT\n"));
    rig.trace.line(rig.server, Speaker::Server, u"221 bye"_s);
    QVERIFY(readFile(rig.path).endsWith("S: 221 bye\n"));
}

void TestTraceFile::whatIsThereStays()
{
    Rig rig;
    writeFile(rig.path, "before\n");
    rig.trace.line(rig.server, Speaker::Client, u"QUIT"_s);
    QVERIFY(readFile(rig.path).startsWith("before\n2026-"));
}

void TestTraceFile::onlyItsOwnerCanReadIt()
{
    Rig rig;
    const mode_t before = ::umask(0);
    rig.trace.line(rig.server, Speaker::Client, u"QUIT"_s);
    ::umask(before);
    struct stat status = {};
    QCOMPARE(::stat(qPrintable(rig.path), &status), 0);
    QCOMPARE(status.st_mode & 0777U, 0600U);
}

void TestTraceFile::controlCharactersAreVisibleAndForgeNoLine()
{
    Rig rig;
    rig.server.host = u"h\nx"_s;
    rig.trace.line(rig.server, Speaker::Server,
                   u"250 ok\r\n\t\x1b[2J\x7f\x85\u2028\u202e"_s + QChar(0) + u"end"_s);
    QCOMPARE(readFile(rig.path), "2026-11-21 09:00:00.000 h\\x0ax:587 S: 250 "
                                 "ok\\x0d\\x0a\\x09\\x1b[2J\\x7f\\x85\\u2028\\u202e\\x00end\n"_ba);
}

void TestTraceFile::hostsAreThoseOfTheAccounts()
{
    Rig rig;
    const TraceAccounts accounts;
    const TraceFile trace(rig.path, rig.clock, rig.prompts, accounts);
    QVERIFY(trace.wants(u"traced"_s));
    QVERIFY(!trace.wants(u"other"_s));
}

void TestTraceFile::everyHostIsWantedWithoutAccounts()
{
    const Rig rig;
    QVERIFY(rig.trace.wants(u"other"_s));
}

void TestTraceFile::nothingIsMadeBeforeTheFirstLine()
{
    const Rig rig;
    QVERIFY(rig.trace.wants(u"other"_s));
    QVERIFY(!QFile::exists(rig.path));
}

void TestTraceFile::fileThatCannotBeOpenedIsSaidOnce()
{
    Rig rig;
    const QString path = rig.folder.filePath(u"none/trace.txt"_s);
    TraceFile trace(path, rig.clock, rig.prompts);
    trace.line(rig.server, Speaker::Client, u"EHLO pc"_s);
    trace.line(rig.server, Speaker::Client, u"QUIT"_s);
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList(u"The dialogue with the server cannot be written to "_s + path +
                         u": No such file or directory."_s));
    QVERIFY(!trace.wants(u"any"_s));
}

void TestTraceFile::fullDiskIsSaidOnceAndLeavesWholeLines()
{
    const QByteArray before = "of another session\n";
    const QByteArray line = "2026-11-21 09:00:00.000 smtp.example.org:587 C: EHLO pc\n";
    forEachFullDisk(before.size() + 2 * line.size(), [&](rlim_t room) {
        Rig rig;
        writeFile(rig.path, before);
        {
            const FileSizeLimit full(room);
            for (int i = 0; i < 5; ++i)
                rig.trace.line(rig.server, Speaker::Client, u"EHLO pc"_s);
        }
        const bool oneFits = room >= static_cast<rlim_t>(before.size() + line.size());
        const QByteArray written = oneFits ? before + line : before;
        QCOMPARE(readFile(rig.path), written);
        QCOMPARE(rig.prompts.takeNoticeTexts(),
                 QStringList(u"The dialogue with the server cannot be written to "_s + rig.path +
                             u": File too large."_s));
        QVERIFY(!rig.trace.wants(u"any"_s));
        rig.trace.line(rig.server, Speaker::Client, u"QUIT"_s);
        QCOMPARE(readFile(rig.path), written);
    });
}

void TestTraceFile::pipeIsNotWaitedFor()
{
    Rig rig;
    QCOMPARE(::mkfifo(qPrintable(rig.path), 0600), 0);
    rig.trace.line(rig.server, Speaker::Client, u"QUIT"_s);
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList(u"The dialogue with the server cannot be written to "_s + rig.path +
                         u": it is not a regular file."_s));
}
