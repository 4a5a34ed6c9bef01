#include "TestSeparatedLines.h"

#include "addressbook/SeparatedLines.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A line with these first fields for a contact that has an address.
QString firstField(const QString &line)
{
    const auto contacts = readSeparatedLines(line);
    if (contacts.size() != 1 || contacts[0].addresses != QStringList{u"a@b.it"_s})
        return u"(no contact)"_s;
    return contacts[0].fields[ContactColumn::DisplayName];
}

QStringList addressesIn(const QString &text)
{
    QStringList addresses;
    for (const ForeignContact &contact : readSeparatedLines(text))
        addresses += contact.addresses;
    return addresses;
}

} // namespace

void TestSeparatedLines::fieldsStandInTheOrderOfABook()
{
    const auto contacts = readSeparatedLines(
        u"Ada - Mill;ada@mill.it;Ada;Mill;Via Roma 1;Pisa;PI;56100;Italia;050 1;050 2;333 3;Hi;"_s);
    QCOMPARE(contacts.size(), std::size_t{1});
    QCOMPARE(contacts[0].addresses, QStringList{u"ada@mill.it"_s});
    QCOMPARE(contacts[0].fieldsLeftOut, 0);
    const Contact &fields = contacts[0].fields;
    QCOMPARE(fields[ContactColumn::DisplayName], u"Ada - Mill"_s);
    QCOMPARE(fields[ContactColumn::Name], u"Ada"_s);
    QCOMPARE(fields[ContactColumn::Company], u"Mill"_s);
    QCOMPARE(fields[ContactColumn::Email], u""_s);
    QCOMPARE(fields[ContactColumn::Address], u"Via Roma 1"_s);
    QCOMPARE(fields[ContactColumn::City], u"Pisa"_s);
    QCOMPARE(fields[ContactColumn::State], u"PI"_s);
    QCOMPARE(fields[ContactColumn::PostCode], u"56100"_s);
    QCOMPARE(fields[ContactColumn::Country], u"Italia"_s);
    QCOMPARE(fields[ContactColumn::Telephone], u"050 1"_s);
    QCOMPARE(fields[ContactColumn::Fax], u"050 2"_s);
    QCOMPARE(fields[ContactColumn::Mobile], u"333 3"_s);
    QCOMPARE(fields[ContactColumn::Notes], u"Hi"_s);
}

void TestSeparatedLines::missingFieldsAreEmpty()
{
    const auto contacts = readSeparatedLines(u"Ada;a@b.it;Ada B"_s);
    QCOMPARE(contacts.size(), std::size_t{1});
    QCOMPARE(contacts[0].fields[ContactColumn::Name], u"Ada B"_s);
    for (int i = static_cast<int>(ContactColumn::Company); i <= Contact::Columns; ++i)
        QCOMPARE(contacts[0].fields[static_cast<ContactColumn>(i)], u""_s);
}

void TestSeparatedLines::lineEnds_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("CR LF") << u"A;a@b.it\r\nC;c@d.it\r\n"_s;
    QTest::newRow("LF") << u"A;a@b.it\nC;c@d.it\n"_s;
    QTest::newRow("CR") << u"A;a@b.it\rC;c@d.it\r"_s;
    QTest::newRow("no end of the last") << u"A;a@b.it\r\nC;c@d.it"_s;
    QTest::newRow("after quotes") << u"A;\"a@b.it\"\r\nC;\"c@d.it\""_s;
    QTest::newRow("after all the fields")
        << u"A;a@b.it;;;;;;;;;;;notes;\r\nC;c@d.it;;;;;;;;;;;;\r\n"_s;
    QTest::newRow("after quoted notes")
        << u"A;a@b.it;;;;;;;;;;;\"notes\"\r\nC;c@d.it;;;;;;;;;;;\"\"\r\n"_s;
}

void TestSeparatedLines::lineEnds()
{
    QFETCH(const QString, text);
    QCOMPARE(addressesIn(text), (QStringList{u"a@b.it"_s, u"c@d.it"_s}));
}

void TestSeparatedLines::linesWithoutTextArePassedOver()
{
    QCOMPARE(addressesIn(u""_s), QStringList());
    QCOMPARE(addressesIn(u"\r\n\r\n  \r\n;;;;\r\n\"\";\" \"\r\nA;a@b.it\r\n\r\n"_s),
             QStringList{u"a@b.it"_s});
}

void TestSeparatedLines::lineWithoutSeparatorIsAName()
{
    const auto contacts = readSeparatedLines(u"My friends\r\n"_s);
    QCOMPARE(contacts.size(), std::size_t{1});
    QCOMPARE(contacts[0].fields[ContactColumn::DisplayName], u"My friends"_s);
    QCOMPARE(contacts[0].addresses, QStringList{u""_s});
}

void TestSeparatedLines::quotesOfSpreadsheetsAreUndone_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("field");
    QTest::newRow("plain") << u"\"Ada\";a@b.it"_s << u"Ada"_s;
    QTest::newRow("empty") << u"\"\";a@b.it"_s << u""_s;
    QTest::newRow("separator") << u"\"Mill; Ada\";a@b.it"_s << u"Mill; Ada"_s;
    QTest::newRow("doubled quotes") << u"\"Ada \"\"A\"\" Mill\";a@b.it"_s << u"Ada \"A\" Mill"_s;
    QTest::newRow("only a quote") << u"\"\"\"\";a@b.it"_s << u"\""_s;
    QTest::newRow("quotes at both ends") << u"\"\"\"Ada\"\"\";a@b.it"_s << u"\"Ada\""_s;
    QTest::newRow("second field") << u"Ada;\"a@b.it\""_s << u"Ada"_s;
}

void TestSeparatedLines::quotesOfSpreadsheetsAreUndone()
{
    QFETCH(const QString, line);
    QTEST(firstField(line), "field");
}

void TestSeparatedLines::quotesOfANameStay_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("at the beginning") << u"\"Bob\" Smith"_s;
    QTest::newRow("in the middle") << u"Robert \"Bob\" Smith"_s;
    QTest::newRow("at the end") << u"Smith \"Bob\""_s;
    QTest::newRow("a blank before") << u" \"Bob\""_s;
    QTest::newRow("doubled") << u"\"\"Bob\"\""_s;
    QTest::newRow("one") << u"\"Bob"_s;
    QTest::newRow("alone") << u"\""_s;
    QTest::newRow("three") << u"\"\"\""_s;
}

void TestSeparatedLines::quotesOfANameStay()
{
    QFETCH(const QString, name);
    QCOMPARE(firstField(name + u";a@b.it"_s), name);
}

void TestSeparatedLines::quotedFieldMayHoldSeveralLines()
{
    const auto contacts = readSeparatedLines(
        u"A;a@b.it;;;\"Via Roma\r\n1\";;;;;;;;\"one;\r\n\r\ntwo\"\r\nC;c@d.it"_s);
    QCOMPARE(contacts.size(), std::size_t{2});
    QCOMPARE(contacts[0].fields[ContactColumn::Address], u"Via Roma\r\n1"_s);
    QCOMPARE(contacts[0].fields[ContactColumn::Notes], u"one;\r\n\r\ntwo"_s);
    QCOMPARE(contacts[1].addresses, QStringList{u"c@d.it"_s});
}

void TestSeparatedLines::quoteThatIsNeverClosedTakesNoOtherLine()
{
    QCOMPARE(addressesIn(u"\"Bob;a@b.it\r\n\"Al;c@d.it\r\nEd \"E;e@f.it"_s),
             (QStringList{u"a@b.it"_s, u"c@d.it"_s, u"e@f.it"_s}));
}

void TestSeparatedLines::notesTakeTheRestOfTheLine_data()
{
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("notes");
    QTest::newRow("book") << u"Hello;"_s << u"Hello"_s;
    QTest::newRow("empty") << u";"_s << u""_s;
    QTest::newRow("nothing") << u""_s << u""_s;
    QTest::newRow("without the last separator") << u"Hello"_s << u"Hello"_s;
    QTest::newRow("separators") << u"a;b;;c;"_s << u"a;b;;c"_s;
    QTest::newRow("a separator at the end") << u"a;;"_s << u"a;"_s;
    QTest::newRow("quoted") << u"\"a;b\""_s << u"a;b"_s;
    QTest::newRow("quoted, with the last separator") << u"\"a;b\";"_s << u"a;b"_s;
    QTest::newRow("quoted, with a separator at the end") << u"\"a;\";"_s << u"a;"_s;
    QTest::newRow("begins with quotes") << u"\"a\" said b;"_s << u"\"a\" said b"_s;
    QTest::newRow("quotes between separators") << u"\"a\";\"b\";"_s << u"\"a\";\"b\""_s;
}

void TestSeparatedLines::notesTakeTheRestOfTheLine()
{
    QFETCH(const QString, rest);
    const auto contacts =
        readSeparatedLines(u"A;a@b.it;;;;;;;;;;;"_s + rest + u"\r\nC;c@d.it\r\n"_s);
    QCOMPARE(contacts.size(), std::size_t{2});
    QTEST(contacts[0].fields[ContactColumn::Notes], "notes");
}
