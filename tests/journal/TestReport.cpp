#include "TestReport.h"

#include "journal/Report.h"
#include "recipients/Totals.h"
#include "support/DiskFiles.h"
#include "support/FileSizeLimit.h"
#include "support/ItalianTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// 21 November 2026, 09:00:00 one hour east of Greenwich.
constexpr qint64 Morning = Q_INT64_C(1795248000) * 1000;
constexpr int Hour = 3600;

ReportSubject subject()
{
    return {u"/home/anna/christmas.svk"_s, u"Greetings"_s, u"club@example.org"_s,
            QDateTime::fromMSecsSinceEpoch(Morning, Qt::OffsetFromUTC, Hour), Language::English};
}

Recipient rowWith(RowState state, Outcome outcome = Outcome::None, int code = 0)
{
    Recipient row;
    row.number = u"1"_s;
    row.name = u"Bruno"_s;
    row.address = u"bruno@example.org"_s;
    row.state = stateWord(state, Language::English);
    if (outcome != Outcome::None) {
        row.attempt.outcome = outcome;
        row.attempt.time = Morning;
        row.attempt.tries = 1;
        row.attempt.reply.code = code;
    }
    return row;
}

Recipient unchecked(Recipient row)
{
    row.checked = false;
    return row;
}

// Reads it as RFC 4180 says, with ";" between the fields.
QList<QStringList> readCsv(const QByteArray &csv)
{
    QList<QStringList> lines;
    QStringList fields;
    QString field;
    bool quoted = false;
    const QString text = QString::fromUtf8(csv.sliced(3));
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text.at(at);
        if (c == u'"' && quoted && text.mid(at + 1, 1) == u"\"") {
            field += c;
            ++at;
        } else if (c == u'"') {
            quoted = !quoted;
        } else if (quoted || (c != u';' && c != u'\r' && c != u'\n')) {
            field += c;
        } else if (c == u';') {
            fields += std::exchange(field, {});
        } else if (c == u'\n') {
            fields += std::exchange(field, {});
            lines += std::exchange(fields, {});
        }
    }
    return lines;
}

class ReadReport
{
public:
    explicit ReadReport(const Report &report) : m_lines(readCsv(report.toCsv())) {}

    /// The value of that label in the head.
    [[nodiscard]] QString head(const QString &label) const
    {
        for (const QStringList &line : m_lines) {
            if (line.size() == 2 && line.front() == label)
                return line.back();
        }
        return u"(there is no %1)"_s.arg(label);
    }
    [[nodiscard]] int number(const QString &label) const { return head(label).toInt(); }
    /// The field of that row, 0-based, below that heading.
    [[nodiscard]] QString field(int row, const QString &heading) const
    {
        const qsizetype headings = m_lines.indexOf(QStringList{QString()}) + 1;
        return m_lines.value(headings + 1 + row)
            .value(m_lines.value(headings).indexOf(heading), u"(there is no %1)"_s.arg(heading));
    }

private:
    QList<QStringList> m_lines;
};

QString fieldOf(const Recipient &row, const QString &heading)
{
    return ReadReport(Report(subject(), {row})).field(0, heading);
}

QJsonObject readJson(const Report &report)
{
    return QJsonDocument::fromJson(report.toJson()).object();
}

QJsonObject firstOf(const QJsonObject &report)
{
    return report.value("recipients"_L1).toArray().at(0).toObject();
}

} // namespace

void TestReport::headSaysWhatItIsAbout()
{
    const ReadReport report(Report(subject(), {}));
    QCOMPARE(report.head(u"Report of the project"_s), u"christmas.svk"_s);
    QCOMPARE(report.head(u"Subject"_s), u"Greetings"_s);
    QCOMPARE(report.head(u"Sender"_s), u"club@example.org"_s);
    QCOMPARE(report.head(u"Made"_s), u"2026-11-21T09:00:00+01:00"_s);
}

void TestReport::projectWithoutANameIsSaidSo()
{
    ReportSubject nameless = subject();
    nameless.project.clear();
    QCOMPARE(ReadReport(Report(nameless, {})).head(u"Report of the project"_s), u"No Name"_s);
    QVERIFY(readJson(Report(nameless, {})).value("project"_L1).isNull());
}

void TestReport::totalsAddUpToTheRows()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const auto anyRow = [&random] {
        Recipient row =
            rowWith(static_cast<RowState>(random.bounded(5)),
                    static_cast<Outcome>(random.bounded(6)), random.bounded(2) == 0 ? 451 : 550);
        if (random.bounded(10) == 0)
            row.state = u"a word of somebody else"_s;
        row.checked = random.bounded(2) == 0;
        return row;
    };
    for (int i = 0; i < 50; ++i) {
        std::vector<Recipient> rows;
        std::generate_n(std::back_inserter(rows), random.bounded(30), anyRow);
        const Report report(subject(), rows);
        const ReadReport csv(report);
        const int count = static_cast<int>(rows.size());
        QCOMPARE(csv.number(u"Recipients"_s), count);
        QCOMPARE(csv.number(u"Sent"_s) + csv.number(u"Refused"_s) + csv.number(u"In doubt"_s) +
                     csv.number(u"Waiting"_s) + csv.number(u"Not sent"_s),
                 count);
        QVERIFY(csv.number(u"Of them for now"_s) <= csv.number(u"Refused"_s));
        const QJsonObject totals = readJson(report).value("totals"_L1).toObject();
        QCOMPARE(totals.value("sent"_L1).toInt(), csv.number(u"Sent"_s));
        QCOMPARE(totals.value("refused"_L1).toInt(), csv.number(u"Refused"_s));
        QCOMPARE(totals.value("refusedForNow"_L1).toInt(), csv.number(u"Of them for now"_s));
        QCOMPARE(totals.value("inDoubt"_L1).toInt(), csv.number(u"In doubt"_s));
        QCOMPARE(totals.value("waiting"_L1).toInt(), csv.number(u"Waiting"_s));
        QCOMPARE(totals.value("notSent"_L1).toInt(), csv.number(u"Not sent"_s));
        QCOMPARE(totals.value("recipients"_L1).toInt(), count);
    }
}

void TestReport::everybodyIsAccountedForOrNot_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *name, RowState state, const QString &result) {
        QTest::newRow(name) << static_cast<int>(state) << result;
    };
    row("sent", RowState::Sent, u"Complete"_s);
    row("refused", RowState::Error, u"Complete"_s);
    row("passed over", RowState::NotSent, u"Complete"_s);
    row("waiting", RowState::Waiting, u"Not complete: 1,001 left"_s);
    row("in doubt", RowState::Sending, u"Not complete: 1,001 in doubt"_s);
}

void TestReport::everybodyIsAccountedForOrNot()
{
    QFETCH(int, state);
    QFETCH(QString, result);
    const std::vector<Recipient> rows(1001, rowWith(static_cast<RowState>(state)));
    QCOMPARE(ReadReport(Report(subject(), rows)).head(u"Result"_s), result);
    QCOMPARE(readJson(Report(subject(), rows)).value("complete"_L1), result == u"Complete");
}

void TestReport::uncheckedRowsNeedNotBeAccountedForUnlessTheyAreInDoubt()
{
    const std::vector<Recipient> rows{rowWith(RowState::Sent),
                                      rowWith(RowState::Sending),
                                      rowWith(RowState::Waiting),
                                      rowWith(RowState::Waiting),
                                      unchecked(rowWith(RowState::Sending)),
                                      unchecked(rowWith(RowState::Waiting))};
    const ReadReport report(Report(subject(), rows));
    QCOMPARE(report.head(u"Result"_s), u"Not complete: 2 in doubt, 2 left"_s);
    QCOMPARE(report.number(u"In doubt"_s), 2);
    QCOMPARE(report.number(u"Waiting"_s), 3);
    QCOMPARE(
        ReadReport(Report(subject(), {unchecked(rowWith(RowState::Waiting))})).head(u"Result"_s),
        u"Complete"_s);
    const Report inDoubt(subject(),
                         {rowWith(RowState::Sent), unchecked(rowWith(RowState::Sending))});
    QCOMPARE(ReadReport(inDoubt).head(u"Result"_s), u"Not complete: 1 in doubt"_s);
    QCOMPARE(readJson(inDoubt).value("complete"_L1), false);
}

void TestReport::rowTellsEverything()
{
    Recipient row = rowWith(RowState::Sent);
    row.attempt = {Outcome::Sent,
                   {SmtpVerb::Content, 250, u"2.0.0"_s, u"Ok: queued as 9F8B41A05C"_s},
                   Morning,
                   2,
                   u"080000000001211120260@pc"_s};
    const ReadReport report(Report(subject(), {unchecked(rowWith(RowState::NotSent)), row}));
    QCOMPARE(report.field(0, u"Checked"_s), u"no"_s);
    QCOMPARE(report.field(1, u"N°"_s), u"1"_s);
    QCOMPARE(report.field(1, u"Name"_s), u"Bruno"_s);
    QCOMPARE(report.field(1, u"Address"_s), u"bruno@example.org"_s);
    QCOMPARE(report.field(1, u"Checked"_s), u"yes"_s);
    QCOMPARE(report.field(1, u"State"_s), u"Sent"_s);
    QCOMPARE(report.field(1, u"Last outcome"_s), u"sent"_s);
    QCOMPARE(report.field(1, u"Time"_s), u"2026-11-21T09:00:00+01:00"_s);
    QCOMPARE(report.field(1, u"Tries"_s), u"2"_s);
    QCOMPARE(report.field(1, u"Code"_s), u"250"_s);
    QCOMPARE(report.field(1, u"Enhanced code"_s), u"2.0.0"_s);
    QCOMPARE(report.field(1, u"Server's text"_s), u"Ok: queued as 9F8B41A05C"_s);
    QCOMPARE(report.field(1, u"Command"_s), u"end of DATA"_s);
    QCOMPARE(report.field(1, u"Message identifier"_s), u"080000000001211120260@pc"_s);
    QCOMPARE(report.field(1, u"Queue id"_s), u"9F8B41A05C"_s);
}

void TestReport::rowWithoutAnAttemptTellsNothingOfIt()
{
    const ReadReport report(Report(subject(), {rowWith(RowState::Waiting)}));
    QCOMPARE(report.field(0, u"Last outcome"_s), u"none"_s);
    QCOMPARE(report.field(0, u"Tries"_s), u"0"_s);
    for (const QString &heading : {u"Time"_s, u"Code"_s, u"Enhanced code"_s, u"Server's text"_s,
                                   u"Command"_s, u"Message identifier"_s, u"Queue id"_s})
        QCOMPARE(report.field(0, heading), QString());
    const QJsonObject row = firstOf(readJson(Report(subject(), {rowWith(RowState::Waiting)})));
    QCOMPARE(row.value("outcome"_L1), u"none"_s);
    QCOMPARE(row.value("tries"_L1), 0);
    for (const char *key :
         {"time", "code", "enhanced", "reply", "command", "identifier", "queueId"})
        QVERIFY2(row.value(QLatin1String(key)).isNull(), key);
}

void TestReport::outcomes_data()
{
    QTest::addColumn<int>("outcome");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    const auto row = [](const char *name, Outcome outcome, int code, const QString &text,
                        const QString &key) {
        QTest::newRow(name) << static_cast<int>(outcome) << code << text << key;
    };
    row("sent", Outcome::Sent, 250, u"sent"_s, u"sent"_s);
    row("refused", Outcome::Refused, 550, u"refused"_s, u"refused"_s);
    row("refused for now", Outcome::Refused, 451, u"refused for now"_s, u"refusedForNow"_s);
    row("refused without a word", Outcome::Refused, 0, u"refused"_s, u"refused"_s);
    row("in doubt", Outcome::InDoubt, 0, u"in doubt"_s, u"inDoubt"_s);
    row("in flight", Outcome::InFlight, 0, u"in doubt"_s, u"inDoubt"_s);
    row("not taken", Outcome::NotTaken, 421, u"not taken"_s, u"notTaken"_s);
}

void TestReport::outcomes()
{
    QFETCH(int, outcome);
    QFETCH(int, code);
    QFETCH(QString, text);
    QFETCH(QString, key);
    const auto settled = static_cast<Outcome>(outcome);
    const Recipient row = rowWith(stateAfter(settled), settled, code);
    QCOMPARE(fieldOf(row, u"Last outcome"_s), text);
    QCOMPARE(firstOf(readJson(Report(subject(), {row}))).value("outcome"_L1), key);
}

void TestReport::outcomeOfARowThatWasReadFromAFileIsItsState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::newRow("sent") << u"Sent"_s << u"sent"_s << u"sent"_s;
    QTest::newRow("refused") << u"Error!"_s << u"refused"_s << u"refused"_s;
    QTest::newRow("in doubt") << u"Sending..."_s << u"in doubt"_s << u"inDoubt"_s;
    QTest::newRow("waiting") << u"Waiting"_s << u"none"_s << u"none"_s;
    QTest::newRow("passed over") << u"Not sent"_s << u"none"_s << u"none"_s;
    QTest::newRow("Italian") << u"Inviato"_s << u"sent"_s << u"sent"_s;
}

void TestReport::outcomeOfARowThatWasReadFromAFileIsItsState()
{
    QFETCH(QString, state);
    QFETCH(QString, text);
    QFETCH(QString, key);
    Recipient row = rowWith(RowState::Waiting);
    row.state = state;
    QCOMPARE(fieldOf(row, u"Last outcome"_s), text);
    QCOMPARE(firstOf(readJson(Report(subject(), {row}))).value("outcome"_L1), key);
}

void TestReport::lastOutcomeStaysWhenTheStateIsOfALaterRun()
{
    const Recipient row = unchecked(rowWith(RowState::NotSent, Outcome::Sent, 250));
    QCOMPARE(fieldOf(row, u"State"_s), u"Not sent"_s);
    QCOMPARE(fieldOf(row, u"Last outcome"_s), u"sent"_s);
    QCOMPARE(ReadReport(Report(subject(), {row})).number(u"Not sent"_s), 1);
}

void TestReport::timesHaveTheOffsetOfTheReport()
{
    ReportSubject inIndia = subject();
    inIndia.made = inIndia.made.toOffsetFromUtc(5 * Hour + Hour / 2);
    const Report report(inIndia, {rowWith(RowState::Sent, Outcome::Sent, 250)});
    QCOMPARE(ReadReport(report).head(u"Made"_s), u"2026-11-21T13:30:00+05:30"_s);
    QCOMPARE(ReadReport(report).field(0, u"Time"_s), u"2026-11-21T13:30:00+05:30"_s);
    QCOMPARE(firstOf(readJson(report)).value("time"_L1), u"2026-11-21T13:30:00+05:30"_s);
}

void TestReport::localTimesAreToldWithTheirOffset()
{
    ReportSubject local = subject();
    local.made = QDateTime::fromMSecsSinceEpoch(Morning, Qt::LocalTime);
    QCOMPARE(ReadReport(Report(local, {})).head(u"Made"_s), u"2026-11-21T09:00:00+01:00"_s);
}

void TestReport::awkwardTextsAreReadBack()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QStringList pieces{u"\""_s,   u";"_s, u"\r\n"_s, u"\n"_s, u"\r"_s,
                             u" "_s,    u","_s, u"'"_s,    u"a"_s,  u"è"_s,
                             u"日本"_s, u"🎄"_s, u"\t"_s,   u"="_s,  u"\u202e"_s};
    const auto anyText = [&] {
        QString text = u"x"_s; // what begins a formula has a test of its own
        for (int i = random.bounded(8); i > 0; --i)
            text += pieces.at(random.bounded(static_cast<int>(pieces.size())));
        return text;
    };
    std::vector<Recipient> rows;
    for (int i = 0; i < 200; ++i) {
        Recipient row = rowWith(RowState::Sent, Outcome::Sent, 250);
        row.name = anyText();
        row.address = anyText();
        row.attempt.reply.text = anyText();
        rows.push_back(row);
    }
    ReportSubject awkward = subject();
    awkward.subject = anyText();
    const Report report(awkward, rows);
    const ReadReport csv(report);
    const QJsonArray json = readJson(report).value("recipients"_L1).toArray();
    QCOMPARE(csv.head(u"Subject"_s), awkward.subject);
    for (int i = 0; i < 200; ++i) {
        const Recipient &row = rows[static_cast<std::size_t>(i)];
        QCOMPARE(csv.field(i, u"Name"_s), row.name);
        QCOMPARE(csv.field(i, u"Address"_s), row.address);
        QCOMPARE(csv.field(i, u"Server's text"_s), row.attempt.reply.text);
        QCOMPARE(csv.field(i, u"Queue id"_s), QString());
        QCOMPARE(json.at(i).toObject().value("name"_L1), row.name);
        QCOMPARE(json.at(i).toObject().value("reply"_L1), row.attempt.reply.text);
    }
}

void TestReport::nothingIsTakenForAFormula_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("field");
    QTest::newRow("=") << u"=1+1"_s << u"'=1+1"_s;
    QTest::newRow("+") << u"+39 051"_s << u"'+39 051"_s;
    QTest::newRow("-") << u"-"_s << u"'-"_s;
    QTest::newRow("@") << u"@SUM(A1)"_s << u"'@SUM(A1)"_s;
    QTest::newRow("tabulator") << u"\t=1"_s << u"'\t=1"_s;
    QTest::newRow("CR") << u"\r=1"_s << u"\"'\r=1\""_s;
    QTest::newRow("with quotes") << u"=\"a\";1"_s << u"\"'=\"\"a\"\";1\""_s;
    QTest::newRow("inside") << u"a=1"_s << u"a=1"_s;
}

void TestReport::nothingIsTakenForAFormula()
{
    QFETCH(QString, text);
    QFETCH(QString, field);
    Recipient row = rowWith(RowState::Waiting);
    row.name = text;
    const QByteArray csv = Report(subject(), {row}).toCsv();
    QVERIFY2(csv.contains(u"\r\n1;%1;bruno@example.org;"_s.arg(field).toUtf8()), csv.constData());
    QCOMPARE(firstOf(readJson(Report(subject(), {row}))).value("name"_L1), text);
}

void TestReport::csvBeginsWithAByteOrderMarkAndEndsLinesWithCrLf()
{
    const QByteArray csv = Report(subject(), {rowWith(RowState::Waiting)}).toCsv();
    QVERIFY(csv.startsWith("\xEF\xBB\xBFReport of the project;christmas.svk\r\n"));
    QVERIFY(csv.contains("\r\nResult;Not complete: 1 left\r\n\r\nN\xC2\xB0;Name;Address;"));
    QVERIFY(csv.endsWith(";Waiting;none;;0;;;;;;\r\n"));
    QCOMPARE(csv.count('\n'), csv.count("\r\n"));
}

void TestReport::jsonSaysTheSameToPrograms()
{
    Recipient row = rowWith(RowState::Error);
    row.attempt = {Outcome::Refused,
                   {SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"No such user"_s},
                   Morning,
                   1,
                   u"080000000001211120260@pc"_s};
    const QJsonObject report = readJson(Report(subject(), {row}));
    QCOMPARE(report.value("project"_L1), u"christmas.svk"_s);
    QCOMPARE(report.value("subject"_L1), u"Greetings"_s);
    QCOMPARE(report.value("sender"_L1), u"club@example.org"_s);
    QCOMPARE(report.value("made"_L1), u"2026-11-21T09:00:00+01:00"_s);
    QCOMPARE(report.value("complete"_L1), true);
    QCOMPARE(firstOf(report), (QJsonObject{{u"row"_s, u"1"_s},
                                           {u"name"_s, u"Bruno"_s},
                                           {u"address"_s, u"bruno@example.org"_s},
                                           {u"checked"_s, true},
                                           {u"state"_s, u"Error!"_s},
                                           {u"outcome"_s, u"refused"_s},
                                           {u"time"_s, u"2026-11-21T09:00:00+01:00"_s},
                                           {u"tries"_s, 1},
                                           {u"code"_s, 550},
                                           {u"enhanced"_s, u"5.1.1"_s},
                                           {u"reply"_s, u"No such user"_s},
                                           {u"command"_s, u"RCPT"_s},
                                           {u"identifier"_s, u"080000000001211120260@pc"_s},
                                           {u"queueId"_s, QJsonValue()}}));
}

void TestReport::jsonIsTheSameInEveryLanguage()
{
    const Report report(subject(), {rowWith(RowState::Sent, Outcome::Sent, 250),
                                    rowWith(RowState::Sending, Outcome::InDoubt)});
    const QByteArray english = report.toJson();
    const ItalianTexts italian;
    QCOMPARE(report.toJson(), english);
}

void TestReport::endingOfTheNameDecidesOnTheForm_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isJson");
    QTest::newRow("csv") << u"report.csv"_s << false;
    QTest::newRow("json") << u"report.json"_s << true;
    QTest::newRow("capitals") << u"REPORT.JSON"_s << true;
    QTest::newRow("no ending") << u"json"_s << false;
    QTest::newRow("another ending") << u"report.json.txt"_s << false;
}

void TestReport::endingOfTheNameDecidesOnTheForm()
{
    QFETCH(QString, name);
    QFETCH(bool, isJson);
    const QTemporaryDir folder;
    const Report report(subject(), {rowWith(RowState::Sent, Outcome::Sent, 250)});
    QVERIFY(report.write(folder.filePath(name)));
    QCOMPARE(readFile(folder.filePath(name)), isJson ? report.toJson() : report.toCsv());
}

void TestReport::fileThatCannotBeWrittenIsSaid()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"missing/report.csv"_s);
    const auto written = Report(subject(), {}).write(path);
    QVERIFY(!written);
    QCOMPARE(written.error().path, path);
}

void TestReport::fullDiskKeepsTheReportBefore_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("csv") << u"report.csv"_s;
    QTest::newRow("json") << u"report.json"_s;
}

void TestReport::fullDiskKeepsTheReportBefore()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QVERIFY(Report(subject(), {}).write(path));
    const QByteArray before = readFile(path);
    const Report report(subject(), {rowWith(RowState::Sent, Outcome::Sent, 250)});
    const qsizetype size = (name.endsWith(u"json") ? report.toJson() : report.toCsv()).size();
    forEachFullDisk(size, [&](rlim_t room) {
        const auto written = [&] {
            const FileSizeLimit full(room);
            return report.write(path);
        }();
        QVERIFY(!written);
        QCOMPARE(written.error().toText(), path + u": File too large"_s);
        QCOMPARE(readFile(path), before);
    });
}
