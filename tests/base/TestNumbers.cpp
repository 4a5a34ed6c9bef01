#include "TestNumbers.h"

#include "base/Numbers.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestNumbers::wholeNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<int>("value");
    QTest::newRow("digits") << u"25"_s << true << 25;
    QTest::newRow("leading zeros") << u"0025"_s << true << 25;
    QTest::newRow("blanks around") << u" \t25 \t"_s << true << 25;
    QTest::newRow("negative") << u"-3"_s << true << -3;
    QTest::newRow("plus") << u"+3"_s << true << 3;
    QTest::newRow("zero") << u"0"_s << true << 0;
    QTest::newRow("empty") << u""_s << false << 0;
    QTest::newRow("blanks") << u"  "_s << false << 0;
    QTest::newRow("sign alone") << u"-"_s << false << 0;
    QTest::newRow("two signs") << u"--3"_s << false << 0;
    QTest::newRow("blank behind the sign") << u"- 3"_s << false << 0;
    QTest::newRow("blank inside") << u"1 2"_s << false << 0;
    QTest::newRow("fraction") << u"1.5"_s << false << 0;
    QTest::newRow("word") << u"ten"_s << false << 0;
    QTest::newRow("letters behind") << u"10x"_s << false << 0;
    QTest::newRow("hexadecimal") << u"0x10"_s << false << 0;
    QTest::newRow("other digits") << u"٣"_s << false << 0;
}

void TestNumbers::wholeNumbers()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isNumber);
    QFETCH(const int, value);
    const auto number = toNumber<qint32>(text);
    QCOMPARE(number.has_value(), isNumber);
    QCOMPARE(number.value_or(0), value);
}

void TestNumbers::rangeOfAType()
{
    QCOMPARE(toNumber<qint16>(u"32767").value_or(0), qint16(32767));
    QVERIFY(!toNumber<qint16>(u"32768"));
    QCOMPARE(toNumber<qint16>(u"-32768").value_or(0), qint16(-32768));
    QVERIFY(!toNumber<qint16>(u"-32769"));
    QCOMPARE(toNumber<qint32>(u"2147483647").value_or(0), 2147483647);
    QVERIFY(!toNumber<qint32>(u"2147483648"));
    QVERIFY(!toNumber<qint32>(u"99999999999999999999999999999999"));
    QVERIFY(!toNumber<qint32>(u"-99999999999999999999999999999999"));
}

void TestNumbers::rangeGiven()
{
    QCOMPARE(wholeNumber(u"1", 1, 65535).value_or(0), 1);
    QCOMPARE(wholeNumber(u"65535", 1, 65535).value_or(0), 65535);
    QVERIFY(!wholeNumber(u"0", 1, 65535));
    QVERIFY(!wholeNumber(u"65536", 1, 65535));
}

void TestNumbers::leadingNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("of a file") << u" 2 "_s << 2;
    QTest::newRow("negative") << u"-2 "_s << -2;
    QTest::newRow("letters behind") << u"12 rows"_s << 12;
    QTest::newRow("fraction") << u"1.9"_s << 1;
    QTest::newRow("none") << u"check"_s << 0;
    QTest::newRow("empty") << u""_s << 0;
    QTest::newRow("largest") << u"2147483647"_s << 2147483647;
    QTest::newRow("too large") << u"2147483648"_s << 2147483647;
    QTest::newRow("much too large") << u"99999999999999999999999999"_s << 2147483647;
    QTest::newRow("too small") << u"-99999999999999999999999999"_s << (-2147483647 - 1);
}

void TestNumbers::leadingNumbers()
{
    QFETCH(const QString, text);
    QFETCH(const int, value);
    QCOMPARE(leadingNumber(text), value);
}

void TestNumbers::numbersAsFilesHoldThem()
{
    QCOMPARE(fileNumber(1), u" 1 "_s);
    QCOMPARE(fileNumber(0), u" 0 "_s);
    QCOMPARE(fileNumber(-7), u"-7 "_s);
    QCOMPARE(fileNumber(40000), u" 40000 "_s);
}
