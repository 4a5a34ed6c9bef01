#include "TestCommandOutput.h"

#include "account/CommandOutput.h"
#include "support/DiskFiles.h"
#include "support/FakeServer.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Runs it to its end.
std::optional<CommandOutput::Answer>
outputOf(const QString &command, std::chrono::milliseconds limit = CommandOutput::UsualLimit)
{
    std::optional<CommandOutput::Answer> answer;
    const CommandOutput output(command, limit,
                               [&answer](const CommandOutput::Answer &given) { answer = given; });
    if (!FakeServer::waitUntil([&answer] { return answer.has_value(); }))
        QTest::qFail("no answer comes", __FILE__, __LINE__);
    return answer;
}

// The reason, or what was printed in brackets.
QString reasonOf(const std::optional<CommandOutput::Answer> &answer)
{
    if (!answer)
        return {};
    return answer->has_value() ? u'[' + **answer + u']' : answer->error();
}

QByteArray contentOf(const QString &path)
{
    return QFile::exists(path) ? readFile(path) : QByteArray();
}

} // namespace

void TestCommandOutput::firstLineIsTaken_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("line");
    QTest::newRow("one line") << uR"(printf "a\n")"_s << u"a"_s;
    QTest::newRow("without its end") << u"printf abc"_s << u"abc"_s;
    QTest::newRow("the first of several") << uR"(printf "a\nb\nc\n")"_s << u"a"_s;
    QTest::newRow("with CR LF") << uR"(printf "a\r\nb\r\n")"_s << u"a"_s;
    QTest::newRow("blanks belong to it") << uR"(printf " a b \n")"_s << u" a b "_s;
    QTest::newRow("beyond ASCII") << u"printf pässwörd"_s << u"pässwörd"_s;
    QTest::newRow("much behind the first line") << u"seq 1 100000"_s << u"1"_s;
}

void TestCommandOutput::firstLineIsTaken()
{
    QFETCH(const QString, command);
    QFETCH(const QString, line);
    QCOMPARE(reasonOf(outputOf(command)), u'[' + line + u']');
}

void TestCommandOutput::failureIsSaidWithoutWhatWasPrinted_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no such program")
        << u"/nowhere/token --user me"_s << u"the command \"/nowhere/token\" cannot be started"_s;
    QTest::newRow("no command") << u"  "_s << u"the command \"\" cannot be started"_s;
    QTest::newRow("it fails") << uR"(sh -c "echo topsecret; exit 3")"_s
                              << u"the command \"sh\" failed with exit status 3"_s;
    QTest::newRow("it is killed") << uR"(sh -c "echo topsecret; kill -9 $$")"_s
                                  << u"the command \"sh\" was ended by force"_s;
    QTest::newRow("nothing") << u"true"_s << u"the command \"true\" printed nothing"_s;
    QTest::newRow("an empty line")
        << uR"(printf "\r\ntopsecret\n")"_s << u"the command \"printf\" printed nothing"_s;
    QTest::newRow("a line without an end")
        << uR"(sh -c "tr '\0' x < /dev/zero")"_s << u"the command \"sh\" printed too much"_s;
}

void TestCommandOutput::failureIsSaidWithoutWhatWasPrinted()
{
    QFETCH(const QString, command);
    QFETCH(const QString, reason);
    QCOMPARE(reasonOf(outputOf(command)), reason);
}

void TestCommandOutput::commandThatNeverEndsIsEnded()
{
    QCOMPARE(reasonOf(outputOf(uR"(sh -c "echo topsecret; exec sleep 1000")"_s,
                               std::chrono::milliseconds(1))),
             u"the command \"sh\" has not ended after 0 seconds"_s);
}

void TestCommandOutput::commandReadsNothing()
{
    // It would wait for ever for a line.
    QCOMPARE(reasonOf(outputOf(u"cat"_s)), u"the command \"cat\" printed nothing"_s);
}

void TestCommandOutput::noShellLooksAtIt()
{
    QCOMPARE(reasonOf(outputOf(u"echo $HOME `id` ; x | y > z \"a  b\""_s)),
             u"[$HOME `id` ; x | y > z a  b]"_s);
}

void TestCommandOutput::answerNeverComesFromInsideTheCall()
{
    bool answered = false;
    const CommandOutput output(u"/nowhere/token"_s, CommandOutput::UsualLimit,
                               [&answered](const CommandOutput::Answer &) { answered = true; });
    QVERIFY(!answered);
    QVERIFY(FakeServer::waitUntil([&answered] { return answered; }));
}

void TestCommandOutput::nothingComesWhenNobodyWaitsAnyMore()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"pid"_s);
    bool answered = false;
    {
        const QString command = uR"(sh -c "echo $$ > %1; echo line; exec sleep 1000")"_s.arg(file);
        const CommandOutput output(command, CommandOutput::UsualLimit,
                                   [&answered](const CommandOutput::Answer &) { answered = true; });
        QVERIFY(FakeServer::waitUntil([&file] { return !contentOf(file).isEmpty(); }));
    }
    const auto process = static_cast<pid_t>(readFile(file).trimmed().toInt());
    QVERIFY(process > 0);
    QVERIFY(FakeServer::waitUntil([process] { return ::kill(process, 0) != 0; }));
    FakeServer::settle();
    QVERIFY(!answered);
}
