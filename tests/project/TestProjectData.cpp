#include "TestProjectData.h"

#include "project/ProjectData.h"

#include <QTest>

namespace {

ProjectData example()
{
    ProjectData project;
    project.paused = true;
    project.nextRecipientIndex = 2;
    project.elapsed = QStringLiteral("75");
    project.server = QStringLiteral("mail.example.org:2525");
    project.senderName = QStringLiteral("The Club");
    project.senderAddress = QStringLiteral("club@example.org");
    project.controlAddress = QStringLiteral("me@example.org");
    project.returnReceipt = true;
    project.textPath = QStringLiteral("C:\\news\\may.txt");
    project.htmlPath = QStringLiteral("C:\\news\\may.htm");
    project.subject = QStringLiteral("News of May");
    project.recipientsPath = QStringLiteral("C:\\news\\members.txt");
    project.messagesPerPacket = QStringLiteral("50");
    project.delayMinutes = QStringLiteral("5");
    project.multiSend = false;
    project.attachments = {QStringLiteral("C:\\news\\map.pdf")};
    Recipient first;
    first.number = QStringLiteral("1");
    first.name = QStringLiteral("Rossi, Mario");
    first.address = QStringLiteral("mario@example.net");
    first.state = QStringLiteral("Sent");
    Recipient second;
    second.number = QStringLiteral("2");
    second.name = QStringLiteral("Anna");
    second.address = QStringLiteral("anna@example.net");
    second.state = QStringLiteral("Not sent");
    second.imageIndex = -5;
    second.checked = false;
    project.recipients = {first, second};
    return project;
}

const QString ExampleText = QStringLiteral("v2.0\r\n"
                                           "pausa\r\n"
                                           " 2 \r\n"
                                           "75\r\n"
                                           "mail.example.org:2525\r\n"
                                           "The Club\r\n"
                                           "club@example.org\r\n"
                                           "me@example.org\r\n"
                                           " 1 \r\n"
                                           "C:\\news\\may.txt\r\n"
                                           "C:\\news\\may.htm\r\n"
                                           "News of May\r\n"
                                           "C:\\news\\members.txt\r\n"
                                           "50\r\n"
                                           "5\r\n"
                                           " 0 \r\n"
                                           "\r\n\r\n\r\n\r\n"
                                           "C:\\news\\map.pdf\r\n"
                                           "\r\n"
                                           "1\r\n"
                                           "Rossi, Mario\r\n"
                                           "mario@example.net\r\n"
                                           "Sent\r\n"
                                           " 2 \r\n"
                                           "check\r\n"
                                           "2\r\n"
                                           "Anna\r\n"
                                           "anna@example.net\r\n"
                                           "Not sent\r\n"
                                           "-5 \r\n"
                                           "nocheck\r\n");

// The example with one of its lines (1-based) replaced.
QString exampleWithLine(int line, const QString &content)
{
    QStringList lines = ExampleText.split(QStringLiteral("\r\n"));
    lines[line - 1] = content;
    return lines.join(QStringLiteral("\r\n"));
}

bool sameRow(const Recipient &a, const Recipient &b)
{
    return a.number == b.number && a.name == b.name && a.address == b.address &&
           a.state == b.state && a.checked == b.checked && a.imageIndex == b.imageIndex;
}

} // namespace

void TestProjectData::aProjectIsWrittenLineByLine()
{
    QCOMPARE(encodeProject(example()), ExampleText);
}

void TestProjectData::whatIsWrittenIsReadBack()
{
    const ProjectData wanted = example();
    const auto read = decodeProject(encodeProject(wanted));
    QVERIFY(read.has_value());
    QVERIFY(!read->cut);
    QVERIFY(read->paused);
    QCOMPARE(read->nextRecipientIndex, wanted.nextRecipientIndex);
    QCOMPARE(read->elapsed, wanted.elapsed);
    QCOMPARE(read->server, wanted.server);
    QCOMPARE(read->senderName, wanted.senderName);
    QCOMPARE(read->senderAddress, wanted.senderAddress);
    QCOMPARE(read->controlAddress, wanted.controlAddress);
    QCOMPARE(read->returnReceipt, wanted.returnReceipt);
    QCOMPARE(read->textPath, wanted.textPath);
    QCOMPARE(read->htmlPath, wanted.htmlPath);
    QCOMPARE(read->subject, wanted.subject);
    QCOMPARE(read->recipientsPath, wanted.recipientsPath);
    QCOMPARE(read->messagesPerPacket, wanted.messagesPerPacket);
    QCOMPARE(read->delayMinutes, wanted.delayMinutes);
    QCOMPARE(read->multiSend, wanted.multiSend);
    QCOMPARE(read->attachments, wanted.attachments);
    QCOMPARE(read->recipients.size(), wanted.recipients.size());
    for (std::size_t i = 0; i < wanted.recipients.size(); ++i)
        QVERIFY(sameRow(read->recipients[i], wanted.recipients[i]));
}

void TestProjectData::withoutAttachmentsFiveLinesAreEmpty()
{
    ProjectData project = example();
    project.attachments.clear();
    const QStringList lines = encodeProject(project).split(QStringLiteral("\r\n"));
    for (int line = 17; line <= 21; ++line)
        QCOMPARE(lines.at(line - 1), QString());
    QCOMPARE(lines.at(21), QStringLiteral("1"));
}

void TestProjectData::anotherTagIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("an earlier format") << exampleWithLine(1, QStringLiteral("v1.0"));
    QTest::newRow("upper case") << exampleWithLine(1, QStringLiteral("V2.0"));
    QTest::newRow("a blank behind it") << exampleWithLine(1, QStringLiteral("v2.0 "));
    QTest::newRow("binary") << QStringLiteral("\u0000\u0001\u007f\u0000");
    QTest::newRow("a quote that is never closed") << QStringLiteral("\"v2.0\r\nstop");
}

void TestProjectData::anotherTagIsRefused()
{
    QFETCH(QString, text);
    const auto read = decodeProject(text);
    QVERIFY(!read.has_value());
    QCOMPARE(read.error(), ProjectFault::WrongTag);
}

void TestProjectData::aSenderNameWithACommaShiftsTheHeader()
{
    const auto read = decodeProject(exampleWithLine(6, QStringLiteral("Rossi, Mario")));
    QVERIFY(read.has_value());
    QCOMPARE(read->senderName, QStringLiteral("Rossi"));
    QCOMPARE(read->senderAddress, QStringLiteral("Mario"));
    QCOMPARE(read->controlAddress, QStringLiteral("club@example.org"));
}

void TestProjectData::aRecipientNameWithACommaStays()
{
    const auto read = decodeProject(ExampleText);
    QVERIFY(read.has_value());
    QCOMPARE(read->recipients.at(0).name, QStringLiteral("Rossi, Mario"));
}

void TestProjectData::theCheckWordIsReadInAnyLetterCase_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("checked");
    QTest::newRow("Check") << QStringLiteral("Check") << true;
    QTest::newRow("CHECK") << QStringLiteral("CHECK") << true;
    QTest::newRow("nocheck") << QStringLiteral("nocheck") << false;
    QTest::newRow("another word") << QStringLiteral("yes") << false;
}

void TestProjectData::theCheckWordIsReadInAnyLetterCase()
{
    QFETCH(QString, word);
    QFETCH(bool, checked);
    const auto read = decodeProject(exampleWithLine(28, word));
    QVERIFY(read.has_value());
    QCOMPARE(read->recipients.at(0).checked, checked);
    QCOMPARE(read->recipients.size(), 2U);
}

void TestProjectData::numbersAreLenient()
{
    QCOMPARE(decodeProject(exampleWithLine(3, QStringLiteral("7x")))->nextRecipientIndex, 7);
    QCOMPARE(decodeProject(exampleWithLine(3, QStringLiteral("x")))->nextRecipientIndex, 0);
    QVERIFY(decodeProject(exampleWithLine(9, QStringLiteral("-1")))->returnReceipt);
    QVERIFY(!decodeProject(exampleWithLine(9, QStringLiteral("yes")))->returnReceipt);
    QCOMPARE(decodeProject(exampleWithLine(27, QStringLiteral("70000")))->recipients[0].imageIndex,
             32767);
}

void TestProjectData::anEmptyChoiceOfSeveralRecipientsIsYes()
{
    QVERIFY(decodeProject(exampleWithLine(16, QString()))->multiSend);
    QVERIFY(!decodeProject(exampleWithLine(16, QStringLiteral(" 0 ")))->multiSend);
}

void TestProjectData::aQuotedFieldRunsToItsQuote()
{
    const auto read =
        decodeProject(exampleWithLine(12, QStringLiteral("  \"News, and more\" dropped")));
    QVERIFY(read.has_value());
    QCOMPARE(read->subject, QStringLiteral("News, and more"));
    QCOMPARE(read->recipientsPath, QStringLiteral("C:\\news\\members.txt"));
}

void TestProjectData::aQuotedFieldMayRunOverLines()
{
    const auto read = decodeProject(exampleWithLine(12, QStringLiteral("\"one\r\ntwo\"")));
    QVERIFY(read.has_value());
    QCOMPARE(read->subject, QStringLiteral("one\r\ntwo"));
    QCOMPARE(read->recipientsPath, QStringLiteral("C:\\news\\members.txt"));
}

void TestProjectData::anyLineEndIsRead_data()
{
    QTest::addColumn<QString>("lineEnd");
    QTest::newRow("LF") << QStringLiteral("\n");
    QTest::newRow("CR") << QStringLiteral("\r");
}

void TestProjectData::anyLineEndIsRead()
{
    QFETCH(QString, lineEnd);
    const auto read = decodeProject(QString(ExampleText).replace(QStringLiteral("\r\n"), lineEnd));
    QVERIFY(read.has_value());
    QCOMPARE(read->delayMinutes, QStringLiteral("5"));
    QCOMPARE(read->recipients.size(), 2U);
    QVERIFY(!read->cut);
}

// Wherever a file ends, either nothing is read, or the recipients that are whole, and then it is
// known that some were lost. Only an end between two recipients cannot be told from a whole file.
void TestProjectData::anExampleCutAtEveryCharacter()
{
    const qsizetype headerEnd = ExampleText.indexOf(QStringLiteral("\r\n1\r\n")) + 2;
    const qsizetype firstEnd = ExampleText.indexOf(QStringLiteral("check\r\n")) + 5;
    const qsizetype secondEnd = ExampleText.size() - 2;
    for (qsizetype length = 0; length <= ExampleText.size(); ++length) {
        const auto read = decodeProject(QStringView(ExampleText).first(length));
        const QByteArray where = "cut after " + QByteArray::number(length);
        // The header is complete with its empty line, of which a CR alone is enough.
        if (length < headerEnd - 1) {
            QVERIFY2(!read.has_value(), where.constData());
            QVERIFY2(read.error() == (length < 4 ? ProjectFault::WrongTag : ProjectFault::Cut),
                     where.constData());
            continue;
        }
        QVERIFY2(read.has_value(), where.constData());
        const std::size_t whole = length >= secondEnd ? 2 : length >= firstEnd ? 1 : 0;
        QVERIFY2(read->recipients.size() == whole, where.constData());
        const bool between = length <= headerEnd ||
                             (length >= firstEnd && length <= firstEnd + 2) || length >= secondEnd;
        QVERIFY2(read->cut == !between, where.constData());
        QVERIFY2(read->paused == between, where.constData());
    }
}

// A quoted field may be read over lines, and nothing is quoted when it is written.
void TestProjectData::aLineEndInAFieldDoesNotTearTheFile()
{
    QString text = ExampleText;
    text.replace(QStringLiteral("News of May\r\n"), QStringLiteral("\"News\r\nof\nMay\"\r\n"));
    const auto read = decodeProject(text);
    QVERIFY(read.has_value());
    QCOMPARE(read->subject, QStringLiteral("News\r\nof\nMay"));
    QCOMPARE(encodeProject(*read), ExampleText);
}
