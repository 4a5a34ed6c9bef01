#include "TestAddressRules.h"

#include "preflight/AddressRules.h"
#include "preflight/FormFindings.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestAddressRules::addressesThatServersTake_data()
{
    QTest::addColumn<QString>("address");
    const auto row = [](const QString &address) { QTest::newRow(qPrintable(address)) << address; };
    row(u"a@example.org"_s);
    row(u" a@example.org "_s);
    row(u"o'neill+news@mail.example.org"_s);
    row(u"\"two words\"@example.org"_s);
    row(u"a@[192.0.2.1]"_s);
    row(u"josé@exämple.org"_s);
}

void TestAddressRules::addressesThatServersTake()
{
    QFETCH(QString, address);
    QCOMPARE(faultOfAddress(address), QString());
}

void TestAddressRules::addressesThatNoServerTakes_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *name, const QString &address, const QString &fault) {
        QTest::newRow(name) << address << fault;
    };
    row("empty", u"  "_s, u"it is empty"_s);
    row("line end", u"a@example.org\nb"_s, u"it holds control characters"_s);
    row("tabulator", u"a\tb@example.org"_s, u"it holds control characters"_s);
    row("C1", u"a\u0085b@example.org"_s, u"it holds control characters"_s);
    row("no at", u"example.org"_s, u"it has no \"@\" between a name and a domain"_s);
    row("no name", u"@example.org"_s, u"it has no \"@\" between a name and a domain"_s);
    row("no domain", u"a@"_s, u"it has no \"@\" between a name and a domain"_s);
    row("blank in the name", u"a b@example.org"_s, u"it holds a blank"_s);
    row("blank in the domain", u"a@exam ple.org"_s, u"it holds a blank"_s);
    row("two addresses", u"a@example.org;b@example.org"_s,
        u"it holds characters that no address may hold"_s);
    row("angle brackets", u"<a@example.org>"_s, u"it holds characters that no address may hold"_s);
    row("no dot", u"a@localhost"_s, u"its domain is not complete"_s);
    row("dot behind the at", u"a@.example.org"_s, u"its domain is not complete"_s);
    row("dot at the end", u"a@example.org."_s, u"its domain is not complete"_s);
    row("two dots", u"a@example..org"_s, u"its domain is not complete"_s);
}

void TestAddressRules::addressesThatNoServerTakes()
{
    QFETCH(QString, address);
    QFETCH(QString, fault);
    QCOMPARE(faultOfAddress(address), fault);
}

void TestAddressRules::letterCaseMakesNoOtherReceiver()
{
    QCOMPARE(addressKey(u" Ann@Example.ORG"_s), addressKey(u"ann@example.org"_s));
    QVERIFY(addressKey(u"ann@example.org"_s) != addressKey(u"anna@example.org"_s));
}

void TestAddressRules::freeMailWantsItsOwnServer_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("provider");
    const auto row = [](const char *name, const QString &address, const QString &host,
                        const QString &provider) {
        QTest::newRow(name) << address << host << provider;
    };
    row("own server", u"club@gmail.com"_s, u"smtp.gmail.com"_s, {});
    row("own server in capitals", u"Club@GMail.com"_s, u"SMTP.GMAIL.COM"_s, {});
    row("its server has another name", u"club@hotmail.it"_s, u"smtp.office365.com"_s, {});
    row("another server", u"club@gmail.com"_s, u"mail.example.org"_s, u"gmail.com"_s);
    row("a name that only ends alike", u"club@libero.it"_s, u"mail.notlibero.it"_s, u"libero.it"_s);
    row("another provider", u"club@libero.it"_s, u"smtp.gmail.com"_s, u"libero.it"_s);
    row("no free mail", u"club@example.org"_s, u"smtp.gmail.com"_s, {});
    row("a domain that only ends alike", u"club@notgmail.com"_s, u"mail.example.org"_s, {});
}

void TestAddressRules::freeMailWantsItsOwnServer()
{
    QFETCH(QString, address);
    QFETCH(QString, host);
    QFETCH(QString, provider);
    QCOMPARE(foreignProvider(address, host), provider);
}

void TestAddressRules::capitals_data()
{
    QTest::addColumn<QString>("subject");
    QTest::addColumn<bool>("shouts");
    QTest::newRow("several words") << u"SUMMER SALE STARTS"_s << true;
    QTest::newRow("with numbers") << u"SALE: 50% OFF!"_s << true;
    QTest::newRow("accents") << u"OFFERTA IN CITTÀ"_s << true;
    QTest::newRow("one word") << u"ANNOUNCEMENT"_s << false;
    QTest::newRow("short") << u"OUR NEWS"_s << false;
    QTest::newRow("one small letter") << u"SUMMER SALE STARTs"_s << false;
    QTest::newRow("no letters") << u"2026 - 2027 !"_s << false;
    QTest::newRow("blanks around one word") << u"   ANNOUNCEMENT   "_s << false;
}

void TestAddressRules::capitals()
{
    QFETCH(QString, subject);
    QFETCH(bool, shouts);
    QCOMPARE(isInCapitalsOnly(subject), shouts);
}
