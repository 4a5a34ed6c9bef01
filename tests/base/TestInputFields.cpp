#include "TestInputFields.h"

#include "base/InputFields.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestInputFields::fields_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("lines") << u"v2.0\r\nstop\r\n"_s << QStringList{u"v2.0"_s, u"stop"_s};
    QTest::newRow("LF and CR") << u"a\nb\rc"_s << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("comma splits") << u"Rossi, Mario\r\n"_s << QStringList{u"Rossi"_s, u"Mario"_s};
    QTest::newRow("leading spaces go") << u"   a\r\n"_s << QStringList{u"a"_s};
    QTest::newRow("other spaces stay") << u"a b \r\n"_s << QStringList{u"a b "_s};
    QTest::newRow("tab is no space") << u"\ta\r\n"_s << QStringList{u"\ta"_s};
    QTest::newRow("number") << u" 1 \r\n-1 \r\n"_s << QStringList{u"1 "_s, u"-1 "_s};
    QTest::newRow("empty lines") << u"\r\n\r\n"_s << QStringList{u""_s, u""_s};
    QTest::newRow("empty fields") << u",,\r\n"_s << QStringList{u""_s, u""_s, u""_s};
    QTest::newRow("quotes go") << u"\"a\"\r\nb"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("comma in quotes") << u"\"a, b\",c"_s << QStringList{u"a, b"_s, u"c"_s};
    QTest::newRow("spaces before the quote") << u"  \" a\"\r\n"_s << QStringList{u" a"_s};
    QTest::newRow("quotes over lines") << u"\"a\r\nb\"\r\nc"_s << QStringList{u"a\r\nb"_s, u"c"_s};
    QTest::newRow("dropped behind the quote") << u"\"a\" b\r\nc"_s << QStringList{u"a"_s, u"c"_s};
    QTest::newRow("dropped up to the comma") << u"\"a\"b,c"_s << QStringList{u"a"_s, u"c"_s};
    QTest::newRow("doubled quote ends") << u"\"a\"\"b\"\r\nc"_s << QStringList{u"a"_s, u"c"_s};
    QTest::newRow("quote inside is a letter") << u"a\"b\"\r\n"_s << QStringList{u"a\"b\""_s};
    QTest::newRow("empty quotes") << u"\"\"\r\n"_s << QStringList{u""_s};
    QTest::newRow("spaces alone") << u"   "_s << QStringList{u""_s};
}

void TestInputFields::fields()
{
    QFETCH(const QString, text);
    QFETCH(const QStringList, expected);
    InputFields input(text);
    QStringList read;
    while (!input.atEnd())
        read += input.field().value_or(u"no field"_s);
    QCOMPARE(read, expected);
}

void TestInputFields::quoteThatIsNeverClosedIsNoField()
{
    InputFields input(u"\"a\r\nb\r\n");
    QVERIFY(!input.field());
    QVERIFY(input.lastWasCut());
    QVERIFY(input.atEnd());
}

void TestInputFields::wholeLineIsLeftAsItIs()
{
    InputFields input(u"  \"Rossi\", Mario \r\nnext\r\n");
    QCOMPARE(input.wholeLine(), u"  \"Rossi\", Mario "_s);
    QCOMPARE(input.wholeLine(), u"next"_s);
    QVERIFY(!input.wholeLine());
}

void TestInputFields::wholeLineAfterAFieldBeginsBehindItsComma()
{
    InputFields input(u"1, Rossi, Mario\r\nnext");
    QCOMPARE(input.field(), u"1"_s);
    QCOMPARE(input.wholeLine(), u" Rossi, Mario"_s);
    QCOMPARE(input.field(), u"next"_s);
}

void TestInputFields::endOfTheTextGivesNothing()
{
    InputFields input(u"");
    QVERIFY(input.atEnd());
    QVERIFY(!input.field());
    QVERIFY(!input.wholeLine());
}

void TestInputFields::cutIsTheEndOfTheTextAlone()
{
    InputFields whole(u"a\r\nb\r\n");
    (void)whole.field();
    QVERIFY(!whole.lastWasCut());
    (void)whole.wholeLine();
    QVERIFY(!whole.lastWasCut());

    InputFields cut(u"a,b");
    (void)cut.field();
    QVERIFY(!cut.lastWasCut());
    (void)cut.field();
    QVERIFY(cut.lastWasCut());

    InputFields cutLine(u"a");
    (void)cutLine.wholeLine();
    QVERIFY(cutLine.lastWasCut());
}
