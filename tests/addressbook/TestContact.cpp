#include "TestContact.h"

#include "addressbook/Contact.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestContact::theDisplayNameIsNameAndCompany_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("company");
    QTest::addColumn<QString>("shown");
    QTest::newRow("both") << u"Ada"_s << u"Mill"_s << u"Ada - Mill"_s;
    QTest::newRow("no company") << u"Ada"_s << u""_s << u"Ada"_s;
    QTest::newRow("no name") << u""_s << u"Mill"_s << u"Mill"_s;
    QTest::newRow("neither") << u""_s << u""_s << u""_s;
    QTest::newRow("a name of spaces") << u"  "_s << u"Mill"_s << u"   - Mill"_s;
}

void TestContact::theDisplayNameIsNameAndCompany()
{
    QFETCH(const QString, name);
    QFETCH(const QString, company);
    QTEST(DisplayName(name, company), "shown");
}

void TestContact::eachColumnIsOfItsOwn()
{
    Contact contact;
    for (int column = 1; column <= Contact::Columns; ++column)
        contact[static_cast<ContactColumn>(column)] = QString::number(column);
    QCOMPARE(contact[ContactColumn::DisplayName], u"1"_s);
    QCOMPARE(contact[ContactColumn::Email], u"4"_s);
    QCOMPARE(contact[ContactColumn::Notes], u"13"_s);
}
