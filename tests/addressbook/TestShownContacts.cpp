#include "TestShownContacts.h"

#include "addressbook/ShownContacts.h"

#include <QTest>

using namespace Qt::StringLiterals;

using Rows = std::vector<int>;

namespace {

ContactTable contacts(const QList<std::array<QString, 4>> &texts)
{
    ContactTable table;
    for (const auto &[shown, name, company, address] : texts) {
        Contact contact;
        contact[ContactColumn::DisplayName] = shown;
        contact[ContactColumn::Name] = name;
        contact[ContactColumn::Company] = company;
        contact[ContactColumn::Email] = address;
        contact[ContactColumn::City] = u"Nowhere"_s;
        table.push_back(contact);
    }
    return table;
}

const ContactTable Three = contacts({
    {u"mara rossi"_s, u"mara rossi"_s, u""_s, u"zeta@mill.example"_s},
    {u"Élodie - Atelier"_s, u"Élodie"_s, u"Atelier"_s, u"mail@atelier.example"_s},
    {u"Rossi & Sons"_s, u""_s, u"Rossi & Sons"_s, u"ABC@sons.example"_s},
});

struct Shown : ShownContacts
{
    Shown() : ShownContacts(QLocale(QLocale::English)) { setContacts(Three); }
};

} // namespace

void TestShownContacts::allAreShownInTheOrderOfTheFile()
{
    const Shown shown;
    QCOMPARE(shown.rows(), (Rows{1, 2, 3}));
    QVERIFY(!shown.sortColumn());
}

void TestShownContacts::aColumnSortsAndASecondClickTurnsItRound()
{
    Shown shown;
    shown.columnClick(Three, ContactColumn::Email);
    QCOMPARE(shown.rows(), (Rows{3, 2, 1}));
    QCOMPARE(shown.sortOrder(), Qt::AscendingOrder);
    shown.columnClick(Three, ContactColumn::Email);
    QCOMPARE(shown.rows(), (Rows{1, 2, 3}));
    QCOMPARE(shown.sortOrder(), Qt::DescendingOrder);
    shown.columnClick(Three, ContactColumn::Email);
    QCOMPARE(shown.rows(), (Rows{3, 2, 1}));
}

void TestShownContacts::anotherColumnBeginsAscending()
{
    Shown shown;
    shown.columnClick(Three, ContactColumn::Email);
    shown.columnClick(Three, ContactColumn::Email);
    shown.columnClick(Three, ContactColumn::Company);
    QVERIFY(shown.sortColumn() == ContactColumn::Company);
    QCOMPARE(shown.sortOrder(), Qt::AscendingOrder);
    QCOMPARE(shown.rows(), (Rows{1, 2, 3}));
}

void TestShownContacts::sortingIgnoresCaseAndKeepsEqualOnes()
{
    const ContactTable table = contacts({{u"b"_s, u""_s, u""_s, u"1"_s},
                                         {u"A"_s, u""_s, u""_s, u"2"_s},
                                         {u"a"_s, u""_s, u""_s, u"3"_s},
                                         {u"B"_s, u""_s, u""_s, u"4"_s}});
    ShownContacts shown{QLocale(QLocale::English)};
    shown.setContacts(table);
    shown.columnClick(table, ContactColumn::DisplayName);
    QCOMPARE(shown.rows(), (Rows{2, 3, 1, 4}));
    shown.columnClick(table, ContactColumn::DisplayName);
    QCOMPARE(shown.rows(), (Rows{1, 4, 2, 3}));
}

void TestShownContacts::whatIsLookedForIsFoundInNameCompanyAndAddress_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<Rows>("rows");
    QTest::newRow("nothing") << u""_s << Rows{1, 2, 3};
    QTest::newRow("blanks") << u"  "_s << Rows{1, 2, 3};
    QTest::newRow("part of a name") << u"oss"_s << Rows{1, 3};
    QTest::newRow("another case") << u"ÉLODIE"_s << Rows{2};
    QTest::newRow("a company") << u"atel"_s << Rows{2};
    QTest::newRow("an address") << u"abc@"_s << Rows{3};
    QTest::newRow("words in another order") << u"rossi mara"_s << Rows{1};
    QTest::newRow("words of two fields") << u"rossi abc"_s << Rows{3};
    QTest::newRow("a word over two fields") << u"elodieatelier"_s << Rows{};
    QTest::newRow("another field") << u"nowhere"_s << Rows{};
}

void TestShownContacts::whatIsLookedForIsFoundInNameCompanyAndAddress()
{
    QFETCH(const QString, words);
    Shown shown;
    shown.find(words);
    QTEST(shown.rows(), "rows");
}

void TestShownContacts::whatIsFoundStaysSorted()
{
    Shown shown;
    shown.columnClick(Three, ContactColumn::Email);
    shown.find(u"rossi"_s);
    QCOMPARE(shown.rows(), (Rows{3, 1}));
    shown.columnClick(Three, ContactColumn::Email);
    QCOMPARE(shown.rows(), (Rows{1, 3}));
    shown.find({});
    QCOMPARE(shown.rows(), (Rows{1, 2, 3}));
}

void TestShownContacts::changedContactsAreSortedAndFoundAnew()
{
    Shown shown;
    shown.columnClick(Three, ContactColumn::Email);
    shown.find(u"rossi"_s);
    ContactTable changed = Three;
    changed[1][ContactColumn::Name] = u"Ada Rossi"_s;
    changed[1][ContactColumn::Email] = u"aaa@mill.example"_s;
    changed.erase(changed.begin());
    shown.setContacts(changed);
    QCOMPARE(shown.rows(), (Rows{1, 2}));
}

void TestShownContacts::aRowIsShownOrNot()
{
    Shown shown;
    shown.find(u"rossi"_s);
    QVERIFY(shown.shows(1));
    QVERIFY(!shown.shows(2));
    QVERIFY(shown.shows(3));
}
