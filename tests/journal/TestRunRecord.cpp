#include "TestRunRecord.h"

#include "journal/RunLines.h"
#include "journal/RunRecord.h"
#include "support/DiskFiles.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const CodePage Western("windows-1252");
const ServerReply Taken{SmtpVerb::Bdat, 250, u"2.0.0"_s, u"Ok: queued as 4X1"_s};
const ServerReply Unknown{SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"no\tsuch\\user\r\nhere"_s};

RunRecord example(int rows = 4)
{
    RunRecord record;
    record.projectPath = u"/home/anna/Zoë's mailing.svk"_s;
    record.started = 1795248000000;
    ProjectData &project = record.project;
    project.paused = true;
    project.elapsed = u"0"_s;
    project.server = u"mail.example.org"_s;
    project.senderName = u"The Club"_s;
    project.senderAddress = u"club@example.org"_s;
    project.subject = u"News"_s;
    project.messagesPerPacket = u"10"_s;
    project.delayMinutes = u"0"_s;
    for (int number = 1; number <= rows; ++number) {
        Recipient row;
        row.number = QString::number(number);
        row.name = u"Name %1"_s.arg(number);
        row.address = u"a%1@example.net"_s.arg(number);
        row.state = u"Waiting"_s;
        project.recipients.push_back(row);
    }
    return record;
}

RunRecord readBack(QByteArrayView content, Language language = Language::English)
{
    const auto record = readRun(content, Western, language);
    if (!record)
        QTest::qFail("the record cannot be read", __FILE__, __LINE__);
    return record.value_or(RunRecord());
}

QStringList statesOf(const RunRecord &record)
{
    QStringList states;
    for (const Recipient &row : record.project.recipients)
        states.append(row.state);
    return states;
}

QByteArray send(const std::vector<int> &positions)
{
    return RunLines::send(1000, u"7"_s, positions, u"id-%1@pc"_s.arg(positions.front()));
}

QByteArray done(const std::vector<int> &positions, Outcome outcome, const ServerReply &reply = {})
{
    return RunLines::done(2000, positions, outcome, reply);
}

} // namespace

void TestRunRecord::whatWasWrittenIsReadBack()
{
    RunRecord written = example();
    written.project.nextRecipientIndex = 3;
    written.project.recipients[0].state = u"Sent"_s;
    written.project.recipients[0].attempt = {Outcome::Sent, Taken, 5, 2, u"1@pc"_s};
    written.project.recipients[1].state = u"Error!"_s;
    written.project.recipients[1].attempt = {Outcome::Refused, Unknown, 6, 1, u"2@pc"_s};
    const RunRecord record = readBack(encodeRun(written, Western));
    QCOMPARE(record.projectPath, written.projectPath);
    QCOMPARE(record.started, written.started);
    QCOMPARE(record.project.nextRecipientIndex, 3);
    QVERIFY(record.project.paused);
    QCOMPARE(statesOf(record), statesOf(written));
    for (std::size_t place = 0; place < 4; ++place)
        QCOMPARE(record.project.recipients[place].attempt,
                 written.project.recipients[place].attempt);
    QVERIFY(!record.isOver);
    QVERIFY(!record.isDamaged);
    QVERIFY(record.hasBegun());
    QVERIFY(readBack(encodeRun(written, Western) + RunLines::over(9)).isOver);
}

void TestRunRecord::textsThatAProjectFileCutsComeBackWhole()
{
    RunRecord written = example();
    ProjectData &project = written.project;
    project.subject = u"Hello, \"Zoë\", and 日本"_s;
    project.senderName = u"Rossi, Mario"_s;
    project.server = u" mail, example"_s;
    project.textPath = u"/home/a, b/letter.txt"_s;
    project.attachments = {u"/home/one.pdf"_s, u"/home/two, three.pdf"_s};
    const RunRecord record = readBack(encodeRun(written, Western));
    QCOMPARE(record.project.subject, project.subject);
    QCOMPARE(record.project.senderName, project.senderName);
    QCOMPARE(record.project.server, project.server);
    QCOMPARE(record.project.textPath, project.textPath);
    QCOMPARE(record.project.attachments, project.attachments);
    QCOMPARE(record.project.senderAddress, project.senderAddress);
    QCOMPARE(statesOf(record), statesOf(written));
}

void TestRunRecord::theProjectInItIsAProjectFile()
{
    const RunRecord written = example();
    const QByteArray project = Western.encode(encodeProject(written.project));
    QVERIFY(encodeRun(written, Western).contains('\n' + project + '\n'));
}

void TestRunRecord::eachResultBringsItsRowUpToDate()
{
    const QByteArray content = encodeRun(example(), Western) + send({1}) +
                               done({1}, Outcome::Sent, Taken) + send({2}) +
                               done({2}, Outcome::Refused, Unknown);
    const RunRecord record = readBack(content);
    QCOMPARE(statesOf(record), QStringList({u"Sent"_s, u"Error!"_s, u"Waiting"_s, u"Waiting"_s}));
    QCOMPARE(record.project.nextRecipientIndex, 3);
    QCOMPARE(record.project.elapsed, u"7"_s);
    const Attempt sent{Outcome::Sent, Taken, 2000, 1, u"id-1@pc"_s};
    QCOMPARE(record.project.recipients[0].attempt, sent);
    const Attempt refused{Outcome::Refused, Unknown, 2000, 1, u"id-2@pc"_s};
    QCOMPARE(record.project.recipients[1].attempt, refused);
    QVERIFY(record.project.recipients[2].attempt.isEmpty());
    const Totals totals = record.totals();
    QCOMPARE(totals.sent, 1);
    QCOMPARE(totals.refused, 1);
    QCOMPARE(totals.waiting, 2);
}

void TestRunRecord::rowsHandedOverWithoutAResultAreInDoubt()
{
    const RunRecord record = readBack(encodeRun(example(), Western) + send({1}) +
                                      done({1}, Outcome::Sent) + send({2, 3}));
    QCOMPARE(statesOf(record),
             QStringList({u"Sent"_s, u"Sending..."_s, u"Sending..."_s, u"Waiting"_s}));
    QCOMPARE(record.project.recipients[1].attempt.outcome, Outcome::InDoubt);
    QVERIFY(isInDoubt(record.project.recipients[2]));
    QCOMPARE(record.project.nextRecipientIndex, 4);
}

void TestRunRecord::aMessageNotTakenIsWhereTheRunGoesOn()
{
    const RunRecord record =
        readBack(encodeRun(example(), Western) + send({1}) + done({1}, Outcome::Sent) +
                 send({2, 3}) + done({2, 3}, Outcome::NotTaken));
    QCOMPARE(statesOf(record), QStringList({u"Sent"_s, u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
    QCOMPARE(record.project.nextRecipientIndex, 2);
}

void TestRunRecord::uncheckedRowsThatWerePassedOverAreNotSent()
{
    RunRecord written = example();
    written.project.recipients[1].checked = false;
    written.project.recipients[3].checked = false;
    const RunRecord record =
        readBack(encodeRun(written, Western) + send({1, 3}) + done({1, 3}, Outcome::Sent));
    QCOMPARE(statesOf(record), QStringList({u"Sent"_s, u"Not sent"_s, u"Sent"_s, u"Waiting"_s}));
}

void TestRunRecord::triesAreCountedOverPauses()
{
    RunRecord written = example();
    written.project.recipients[0].attempt.tries = 2;
    const RunRecord record = readBack(encodeRun(written, Western) + send({1}) +
                                      done({1}, Outcome::NotTaken) + send({1}));
    QCOMPARE(record.project.recipients[0].attempt.tries, 4);
}

void TestRunRecord::aRecordCutAtAnyByteIsReadToItsLastWholeLine_data()
{
    QTest::addColumn<int>("groupSize");
    QTest::newRow("singles") << 1;
    QTest::newRow("groups") << 3;
}

void TestRunRecord::aRecordCutAtAnyByteIsReadToItsLastWholeLine()
{
    QFETCH(int, groupSize);
    constexpr int Rows = 6;
    const QByteArray head = encodeRun(example(Rows), Western);
    QByteArray content = head;
    struct Step
    {
        qsizetype end = 0;
        int last = 0;
        bool isResult = false;
    };
    std::vector<Step> steps;
    for (int first = 1; first <= Rows; first += groupSize) {
        std::vector<int> positions;
        for (int position = first; position < first + groupSize; ++position)
            positions.push_back(position);
        content += send(positions);
        steps.push_back({content.size(), positions.back(), false});
        content += done(positions, Outcome::Sent, Taken);
        steps.push_back({content.size(), positions.back(), true});
    }
    for (qsizetype size = 0; size <= content.size(); ++size) {
        const auto record = readRun(content.first(size), Western, Language::English);
        QCOMPARE(record.has_value(), size >= head.size());
        if (!record)
            continue;
        int handedOver = 0;
        int sent = 0;
        for (const Step &step : steps) {
            if (step.end > size)
                break;
            handedOver = step.last;
            if (step.isResult)
                sent = step.last;
        }
        for (int position = 1; position <= Rows; ++position) {
            const RowState expected = position <= sent         ? RowState::Sent
                                      : position <= handedOver ? RowState::Sending
                                                               : RowState::Waiting;
            QCOMPARE(stateOfWord(record->project.recipients[std::size_t(position - 1)].state),
                     expected);
        }
        QCOMPARE(record->project.nextRecipientIndex, handedOver + 1);
    }
}

// Row 1 was sent, row 2 is in doubt, row 3 was never handed over.
void TestRunRecord::aBrokenByteNeverMakesARowSentOrWaitingAgain()
{
    const QByteArray content = encodeRun(example(3), Western) + send({1}) +
                               done({1}, Outcome::Sent, Taken) + send({2}) +
                               done({2}, Outcome::Refused, Unknown);
    for (qsizetype place = 0; place < content.size(); ++place) {
        QByteArray broken = content;
        broken[place] = char(broken[place] ^ 0x04);
        const auto record = readRun(broken, Western, Language::English);
        if (!record)
            continue;
        const bool isCut = place == content.size() - 1; // the last line was never finished, then
        QCOMPARE(record->isDamaged, !isCut);
        const QStringList states = statesOf(*record);
        QVERIFY(states[0] == u"Sent"_s || states[0] == u"Sending..."_s);
        // The last line alone is believed: nothing behind it says that there was another.
        QVERIFY(states[1] != u"Sent"_s);
        // Behind a broken last line there may have been another message.
        const bool lastLineIsBroken = place > content.lastIndexOf('\n', -2);
        QCOMPARE(states[2], lastLineIsBroken && !isCut ? u"Sending..."_s : u"Waiting"_s);
    }
}

void TestRunRecord::aResultWithoutItsHandOverMovesTheRunOn()
{
    const RunRecord record =
        readBack(encodeRun(example(), Western) + "broken\n" + done({1}, Outcome::Sent, Taken));
    QCOMPARE(statesOf(record).front(), u"Sent"_s);
    QCOMPARE(record.project.nextRecipientIndex, 2);
}

void TestRunRecord::theMessageBehindABrokenEndIsInDoubt()
{
    RunRecord written = example();
    written.project.recipients[1].checked = false;
    const QByteArray end = send({1}) + done({1}, Outcome::Sent) + "broken\n";
    RunRecord record = readBack(encodeRun(written, Western) + end);
    QCOMPARE(statesOf(record),
             QStringList({u"Sent"_s, u"Not sent"_s, u"Sending..."_s, u"Waiting"_s}));
    QCOMPARE(record.project.nextRecipientIndex, 4);
    written.project.multiSend = true;
    written.project.messagesPerPacket = u"2"_s;
    record = readBack(encodeRun(written, Western) + end);
    QCOMPARE(statesOf(record),
             QStringList({u"Sent"_s, u"Not sent"_s, u"Sending..."_s, u"Sending..."_s}));
}

// A byte less between them, and two lines are one that is broken.
void TestRunRecord::theMessageBehindABrokenEndIsInDoubtAlsoWhenTheRunIsOver()
{
    const RunRecord record =
        readBack(encodeRun(example(), Western) + send({1}) + done({1}, Outcome::Sent) +
                 send({2}).chopped(1) + done({2}, Outcome::Sent) + RunLines::over(9));
    QCOMPARE(statesOf(record),
             QStringList({u"Sent"_s, u"Sending..."_s, u"Waiting"_s, u"Waiting"_s}));
    QCOMPARE(record.project.nextRecipientIndex, 3);
}

void TestRunRecord::eachBrokenLineAtTheEndMayBeAMessage()
{
    const RunRecord record =
        readBack(encodeRun(example(), Western) + send({1}) + "broken\nbroken\nbroken\n");
    QCOMPARE(statesOf(record),
             QStringList({u"Sending..."_s, u"Sending..."_s, u"Sending..."_s, u"Sending..."_s}));
    QCOMPARE(record.project.nextRecipientIndex, 5);
}

void TestRunRecord::aMessageNotTakenTellsThatTheRunHadComeThere()
{
    const RunRecord record = readBack(encodeRun(example(), Western) + "broken\nbroken\nbroken\n" +
                                      done({2}, Outcome::NotTaken));
    QCOMPARE(statesOf(record),
             QStringList({u"Sending..."_s, u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
    QCOMPARE(record.project.nextRecipientIndex, 2);
}

void TestRunRecord::whomTheServerRefusedOfAMessageNotTakenDoesNotMoveTheRunOn()
{
    const RunRecord record =
        readBack(encodeRun(example(), Western) + send({1, 2, 3}) + done({1, 2}, Outcome::NotTaken) +
                 done({3}, Outcome::Refused, Unknown));
    QCOMPARE(statesOf(record),
             QStringList({u"Waiting"_s, u"Waiting"_s, u"Error!"_s, u"Waiting"_s}));
    QCOMPARE(record.project.nextRecipientIndex, 1);
}

// A run comes to whoever is checked, whatever the state says.
void TestRunRecord::rowsThatWereRefusedBeforeAreInDoubtToo()
{
    RunRecord written = example();
    written.project.recipients[0].state = u"Error!"_s;
    written.project.recipients[1].state = u"what is this"_s;
    written.project.recipients[2].state = u"Error!"_s;
    const QStringList inDoubt{u"Sending..."_s, u"Sending..."_s, u"Error!"_s, u"Waiting"_s};
    QCOMPARE(statesOf(readBack(encodeRun(written, Western) + "broken\nbroken\n")), inDoubt);
    RunRecord record = readBack(encodeRun(written, Western) + "broken\n" + send({3}) +
                                done({3}, Outcome::Refused, Unknown));
    QCOMPARE(statesOf(record), inDoubt);
}

void TestRunRecord::aMessageWhoseHandOverIsLostWasHandedOver()
{
    for (const QByteArray &end : {QByteArray(), done({1}, Outcome::Sent, Taken)}) {
        const RunRecord record = readBack(encodeRun(example(), Western) + "broken\n" + end);
        QVERIFY(record.hasBegun());
        QCOMPARE(record.project.recipients[0].attempt.tries, 1);
    }
    RunRecord written = example(1);
    written.project.nextRecipientIndex = 2;
    written.project.recipients[0].state = u"Sending..."_s;
    QVERIFY(readBack(encodeRun(written, Western) + "broken\n").hasBegun());
}

void TestRunRecord::theControlRowIsNobodyWhoIsCounted()
{
    RunRecord written = example(2);
    written.project.controlAddress = u"a2@example.net"_s;
    const RunRecord record =
        readBack(encodeRun(written, Western) + send({1}) + done({1}, Outcome::Sent));
    QCOMPARE(record.totals().rows, 1);
    QCOMPARE(record.totals().waiting, 0);
    QVERIFY(record.canContinue());
}

void TestRunRecord::rangesThatRepeatRowsSayNothing()
{
    for (const QString &field : {u"1-2,1-2"_s, u"1,2,2"_s, u"2-1"_s, u""_s, u"x"_s})
        QVERIFY(RunLines::positionsOf(field, 2).empty());
    QCOMPARE(RunLines::positionsOf(u"1,2"_s, 2), std::vector({1, 2}));
}

void TestRunRecord::rowsThatNoLineAccountsForAreInDoubt()
{
    const RunRecord record =
        readBack(encodeRun(example(), Western) + "what is this\n" +
                 "00000000 send\t1000\t7\t1\tid\n" + send({3}) + done({3}, Outcome::Sent));
    QVERIFY(record.isDamaged);
    QCOMPARE(statesOf(record),
             QStringList({u"Sending..."_s, u"Sending..."_s, u"Sent"_s, u"Waiting"_s}));
    QCOMPARE(record.project.nextRecipientIndex, 4);
}

void TestRunRecord::positionsBeyondTheListChangeNothing()
{
    const QByteArray content = encodeRun(example(2), Western);
    for (const std::vector<int> &positions :
         {std::vector{0}, std::vector{3}, std::vector{-1}, std::vector{1, 2, 3}})
        QCOMPARE(statesOf(readBack(content + done(positions, Outcome::Sent))),
                 QStringList({u"Waiting"_s, u"Waiting"_s}));
}

void TestRunRecord::whatIsNoRecordIsNone_data()
{
    const QByteArray content = encodeRun(example(), Western);
    const QByteArray head = content.first(content.indexOf('\n') + 1);
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("Hello,\nworld\n");
    QTest::newRow("line ends") << QByteArray("\n\n\n");
    QTest::newRow("a project file") << Western.encode(encodeProject(example().project));
    QTest::newRow("a head alone") << head;
    QTest::newRow("no project behind the head") << head + send({1});
    QTest::newRow("a project that is none") << head + RunLines::project("v1.0\r\n");
    QTest::newRow("a project that is cut") << head + RunLines::project("v2.0\r\npausa\r\n");
    QTest::newRow("bytes") << QByteArray(100, '\xff');
}

void TestRunRecord::whatIsNoRecordIsNone()
{
    QFETCH(QByteArray, content);
    QVERIFY(!readRun(content, Western, Language::English));
}

void TestRunRecord::statesAreInTheWindowsLanguage()
{
    const QByteArray content =
        encodeRun(example(2), Western) + send({1}) + done({1}, Outcome::Sent) + send({2});
    QCOMPARE(statesOf(readBack(content, Language::Italian)),
             QStringList({u"Inviato"_s, u"Invio..."_s}));
}

void TestRunRecord::theProjectOfARunIsReadFromItsHeadAlone()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a.run"_s);
    const QByteArray content = encodeRun(example(), Western);
    writeFile(file, content.first(content.indexOf('\n') + 1));
    QCOMPARE(projectOfRun(file), example().projectPath);
    writeFile(file, "something else\n");
    QCOMPARE(projectOfRun(file), QString());
    QCOMPARE(projectOfRun(folder.filePath(u"missing.run"_s)), QString());
}
