#include "TestContactCheck.h"

#include "addressbook/ContactCheck.h"
#include "support/ItalianTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Contact contactOf(const QString &name, const QString &company, const QString &address)
{
    Contact contact;
    contact[ContactColumn::Name] = name;
    contact[ContactColumn::Company] = company;
    contact[ContactColumn::Email] = address;
    return contact;
}

const QString Fill = u"You must fill 'Name' or 'Company' fields and 'E-Mail' field."_s;
const QString Invalid = u"The specified e-mail address isn't valid."_s;

} // namespace

void TestContactCheck::aContactNeedsANameOrACompanyAndAnAddress_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("company");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("refusal");
    const QString address = u"ada@mill.example"_s;
    QTest::newRow("name and address") << u"Ada"_s << u""_s << address << u""_s;
    QTest::newRow("company and e-mail filled, name empty")
        << u""_s << u"Mill"_s << address << u""_s;
    QTest::newRow("name filled, e-mail empty") << u"Ada"_s << u""_s << u""_s << Fill;
    QTest::newRow("address alone") << u""_s << u""_s << address << Fill;
    QTest::newRow("nothing") << u""_s << u""_s << u""_s << Fill;
    QTest::newRow("a name of spaces counts as filled") << u"  "_s << u""_s << address << u""_s;
    QTest::newRow("an address of spaces") << u"Ada"_s << u""_s << u"  "_s << Invalid;
    QTest::newRow("invalid address") << u"Ada"_s << u""_s << u"ada@mill"_s << Invalid;
}

void TestContactCheck::aContactNeedsANameOrACompanyAndAnAddress()
{
    QFETCH(const QString, name);
    QFETCH(const QString, company);
    QFETCH(const QString, address);
    QFETCH(const QString, refusal);
    const auto refused = refusalOf(contactOf(name, company, address), Language::English);
    QCOMPARE(refused ? refused->text : QString(), refusal);
    if (refused)
        QCOMPARE(refused->icon, Icon::Critical);
}

void TestContactCheck::textsOfTheRefusals_data()
{
    QTest::addColumn<Language>("language");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    const QString bad = u"ada"_s;
    QTest::newRow("English, to be filled") << Language::English << u""_s << u"Error"_s << Fill;
    QTest::newRow("Italian, to be filled")
        << Language::Italian << u""_s << u"Avviso"_s
        << u"E' obbligatorio indicare il Nome e/o l'Azienda e l'indirizzo E-Mail."_s;
    QTest::newRow("English, invalid") << Language::English << bad << u"E-Mail"_s << Invalid;
    QTest::newRow("Italian, invalid") << Language::Italian << bad << u"E-Mail"_s
                                      << u"L'indirizzo e-mail specificato non è valido"_s;
}

// Whatever language the program speaks.
void TestContactCheck::textsOfTheRefusals()
{
    QFETCH(const Language, language);
    QFETCH(const QString, address);
    const ItalianTexts texts;
    const auto refused = refusalOf(contactOf(u"Ada"_s, {}, address), language);
    QVERIFY(refused);
    QTEST(refused->title, "title");
    QTEST(refused->text, "text");
}
