#include "TestBookText.h"

#include "addressbook/BookText.h"

#include <QTest>

#include <rapidcheck.h>

using namespace Qt::StringLiterals;

namespace {

Contact only(const QString &text)
{
    const BookText book = readBookText(text);
    if (book.contactTable.size() != 1)
        QTest::qFail("not one contact", __FILE__, __LINE__);
    return book.contactTable.empty() ? Contact() : book.contactTable.front();
}

/// A contact each of whose fields says its column.
Contact numbered()
{
    Contact contact;
    for (int column = 1; column <= Contact::Columns; ++column)
        contact[static_cast<ContactColumn>(column)] = u'c' + QString::number(column);
    return contact;
}

QString savedAgain(const QString &text)
{
    return bookTextOf(readBookText(text).contactTable);
}

} // namespace

void TestBookText::theFieldsStandInTheOrderOfTheFile()
{
    const QString line = u"c1;c4;c2;c3;c5;c6;c7;c8;c9;c10;c11;c12;c13;\r\n"_s;
    QCOMPARE(bookTextOf({numbered()}), line);
    QVERIFY(only(line) == numbered());
}

void TestBookText::aNameAndAnAddressWithAFinalSemicolonLeaveTheNameEmpty()
{
    const Contact contact = only(u"Ada;ada@mill.example;\r\n"_s);
    QCOMPARE(contact[ContactColumn::DisplayName], u"Ada"_s);
    QCOMPARE(contact[ContactColumn::Email], u"ada@mill.example"_s);
    QCOMPARE(contact[ContactColumn::Name], QString());
}

void TestBookText::aNameAndAnAddressAloneAreAlsoTheName()
{
    const Contact contact = only(u"Ada;ada@mill.example\r\n"_s);
    QCOMPARE(contact[ContactColumn::DisplayName], u"Ada"_s);
    QCOMPARE(contact[ContactColumn::Email], u"ada@mill.example"_s);
    QCOMPARE(contact[ContactColumn::Name], u"Ada"_s);
}

void TestBookText::notesOfTwoLinesStandOnOneLineAndComeBack()
{
    Contact contact = numbered();
    contact[ContactColumn::Notes] = u"first\r\nsecond"_s;
    const QString text = bookTextOf({contact});
    QVERIFY2(text.endsWith(u";first\\n\\rsecond;\r\n"_s), qPrintable(text));
    QCOMPARE(text.count(u'\n'), 1);
    QVERIFY(only(text) == contact);
}

void TestBookText::lineEndsInTheFirstTwoFieldsStayAsTheyAreWritten()
{
    Contact contact = numbered();
    contact[ContactColumn::DisplayName] = u"a\r\nb"_s;
    contact[ContactColumn::Email] = u"c\r\nd"_s;
    contact[ContactColumn::Name] = u"e\r\nf"_s;
    const Contact read = only(bookTextOf({contact}));
    QCOMPARE(read[ContactColumn::DisplayName], u"a\\n\\rb"_s);
    QCOMPARE(read[ContactColumn::Email], u"c\\n\\rd"_s);
    QCOMPARE(read[ContactColumn::Name], u"e\r\nf"_s);
}

void TestBookText::halfALineEndDoesNotTearTheLine_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("CR") << u"\r"_s;
    QTest::newRow("LF") << u"\n"_s;
}

void TestBookText::halfALineEndDoesNotTearTheLine()
{
    QFETCH(const QString, end);
    Contact contact = numbered();
    contact[ContactColumn::Notes] = u"first"_s + end + u"second"_s;
    QCOMPARE(only(bookTextOf({contact}))[ContactColumn::Notes], u"first\r\nsecond"_s);
}

void TestBookText::notesHoldingASemicolonSurvive()
{
    Contact contact = numbered();
    contact[ContactColumn::Notes] = u";one; two;;"_s;
    QVERIFY(only(bookTextOf({contact})) == contact);
}

void TestBookText::aCompanyHoldingASemicolonMovesWhatFollows()
{
    Contact contact = numbered();
    contact[ContactColumn::Company] = u"Mill; Sons"_s;
    const Contact read = only(bookTextOf({contact}));
    QCOMPARE(read[ContactColumn::Name], u"c2"_s);
    QCOMPARE(read[ContactColumn::Company], u"Mill"_s);
    QCOMPARE(read[ContactColumn::Address], u" Sons"_s);
    QCOMPARE(read[ContactColumn::City], u"c5"_s);
    QCOMPARE(read[ContactColumn::Mobile], u"c11"_s);
    QCOMPARE(read[ContactColumn::Notes], u"c12;c13"_s);
}

void TestBookText::aFullLineOfEmptyFieldsIsAnEmptyContact()
{
    QVERIFY(only(u";;;;;;;;;;;;;\r\n"_s) == Contact());
    QCOMPARE(bookTextOf({Contact()}), u";;;;;;;;;;;;;\r\n"_s);
}

void TestBookText::theAddressEndsAtItsComment()
{
    const Contact contact = only(u"Ada;ada@mill.example # old;Ada;\r\n"_s);
    QCOMPARE(contact[ContactColumn::Email], u"ada@mill.example "_s);
    QCOMPARE(contact[ContactColumn::Name], u"Ada"_s);
}

void TestBookText::aNumberSignElsewhereStays()
{
    const Contact contact = only(u"#1;a@b.example;#2;#3;#4;#5;#6;#7;#8;#9;#10;#11;#12;"_s);
    QCOMPARE(contact[ContactColumn::DisplayName], u"#1"_s);
    QCOMPARE(contact[ContactColumn::Company], u"#3"_s);
    QCOMPARE(contact[ContactColumn::Notes], u"#12"_s);
}

// What is dropped is the ";" that ends a full line, and nobody looks whether it is one.
void TestBookText::aFullLineWithoutItsLastSemicolonLosesTheEndOfTheNotes()
{
    QCOMPARE(only(u"1;2;3;4;5;6;7;8;9;10;11;12;notes"_s)[ContactColumn::Notes], u"note"_s);
    QCOMPARE(only(u"1;2;3;4;5;6;7;8;9;10;11;12;"_s)[ContactColumn::Notes], QString());
}

void TestBookText::aLineWithoutSemicolonEndsTheReading_data()
{
    QTest::addColumn<QString>("broken");
    QTest::newRow("a text") << u"nothing here"_s;
    QTest::newRow("an empty line") << u""_s;
}

void TestBookText::aLineWithoutSemicolonEndsTheReading()
{
    QFETCH(const QString, broken);
    const BookText book =
        readBookText(u"A;a@b.example;\r\nB;b@b.example;\r\n"_s + broken + u"\r\nC;c@b.example;"_s);
    QCOMPARE(book.contactTable.size(), std::size_t{2});
    QCOMPARE(book.contactTable.back()[ContactColumn::DisplayName], u"B"_s);
    QCOMPARE(book.brokenLine, 3);
}

void TestBookText::fiftyFieldsAreThirteen()
{
    QStringList fields;
    for (int field = 1; field <= 50; ++field)
        fields.append(QString::number(field));
    const Contact contact = only(fields.join(u';') + u';');
    QCOMPARE(contact[ContactColumn::Mobile], u"12"_s);
    QCOMPARE(contact[ContactColumn::Notes], fields.sliced(12).join(u';'));
}

void TestBookText::aLineOfAMegabyteIsRead()
{
    const QString name(1 << 20, u'x');
    const Contact contact = only(name + u";a@b.example;"_s);
    QCOMPARE(contact[ContactColumn::DisplayName], name);
    QCOMPARE(contact[ContactColumn::Email], u"a@b.example"_s);
}

void TestBookText::anEmptyTextIsAnEmptyBook()
{
    const BookText book = readBookText({});
    QVERIFY(book.contactTable.empty());
    QCOMPARE(book.brokenLine, 0);
    QCOMPARE(bookTextOf({}), QString());
}

void TestBookText::linesEndInAnyWay_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("CR LF") << u"\r\n"_s;
    QTest::newRow("LF") << u"\n"_s;
    QTest::newRow("CR") << u"\r"_s;
}

void TestBookText::linesEndInAnyWay()
{
    QFETCH(const QString, end);
    const BookText book = readBookText(u"A;a@b.example;"_s + end + u"B;b@b.example;"_s);
    QCOMPARE(book.brokenLine, 0);
    QCOMPARE(bookTextOf(book.contactTable),
             u"A;a@b.example;;;;;;;;;;;;\r\nB;b@b.example;;;;;;;;;;;;\r\n"_s);
}

void TestBookText::theSecondSaveWritesTheSameText_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    for (int column = 1; column <= Contact::Columns; ++column) {
        for (const QString &text : {u"a#b"_s, u"a;b"_s, u"a\\n\\rb"_s, u"a\r\nb"_s, u";"_s, u"#"_s,
                                    u"a\r"_s, u"\\n\\r"_s}) {
            QTest::addRow("column %d, %s", column, qPrintable(text)) << column << text;
        }
    }
}

void TestBookText::theSecondSaveWritesTheSameText()
{
    QFETCH(const int, column);
    QFETCH(const QString, text);
    Contact contact = numbered();
    contact[static_cast<ContactColumn>(column)] = text;
    const QString second = savedAgain(bookTextOf({contact}));
    QCOMPARE(readBookText(second).contactTable.size(), std::size_t{1});
    QCOMPARE(savedAgain(second), second);
}

void TestBookText::whateverIsReadIsWrittenTheSameFromTheSecondSaveOn()
{
    const bool holds = rc::check([] {
        const auto piece = rc::gen::element<QString>(u";"_s, u"#"_s, u"\\n\\r"_s, u"\r"_s, u"\n"_s,
                                                     u"\r\n"_s, u"a"_s, u"\\"_s, u"é"_s);
        QString text;
        for (const QString &part : *rc::gen::container<std::vector<QString>>(piece))
            text += part;
        const QString second = savedAgain(savedAgain(text));
        RC_ASSERT(savedAgain(second) == second);
    });
    QVERIFY(holds);
}
