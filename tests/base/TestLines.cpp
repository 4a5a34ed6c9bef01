#include "TestLines.h"

#include "base/Lines.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestLines::lines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("empty text") << u""_s << QStringList();
    QTest::newRow("CR LF") << u"a\r\nb\r\n"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("LF") << u"a\nb\n"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("CR") << u"a\rb\r"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("all three") << u"a\r\nb\nc\rd"_s << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QTest::newRow("no end of the last") << u"a\r\nb"_s << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("empty lines") << u"\r\n\r\n"_s << QStringList{u""_s, u""_s};
    QTest::newRow("LF CR is two ends") << u"a\n\rb"_s << QStringList{u"a"_s, u""_s, u"b"_s};
    QTest::newRow("CR CR LF is two ends") << u"a\r\r\nb"_s << QStringList{u"a"_s, u""_s, u"b"_s};
    QTest::newRow("NUL ends nothing") << QString(u"a\0b\n"_s) << QStringList{u"a\0b"_s};
    QTest::newRow("no other separator")
        << u"a\u2028b\u0085c\fd"_s << QStringList{u"a\u2028b\u0085c\fd"_s};
}

void TestLines::lines()
{
    QFETCH(const QString, text);
    QFETCH(const QStringList, expected);
    QStringList read;
    LineReader reader(text);
    while (!reader.atEnd())
        read += reader.next()->toString();
    QCOMPARE(read, expected);
    QVERIFY(!reader.next());
}

void TestLines::lineEndsAtTheStart()
{
    QCOMPARE(lineEndLength(u"\r\nx"), 2);
    QCOMPARE(lineEndLength(u"\rx"), 1);
    QCOMPARE(lineEndLength(u"\n\r"), 1);
    QCOMPARE(lineEndLength(u"x\r\n"), 0);
    QCOMPARE(lineEndLength(u""), 0);
}

void TestLines::severalLinesBecomeOne()
{
    QCOMPARE(oneLine(QStringLiteral("a\r\nb\rc\n\nd")), QStringLiteral("a b c  d"));
    QCOMPARE(oneLine(QStringLiteral("plain")), QStringLiteral("plain"));
}

void TestLines::controlCharactersBecomeVisible()
{
    QCOMPARE(withVisibleControls(u"a\r\n\x1b[2J\x7f\u0085\u202e\u2028z"),
             QStringLiteral("a\\x0d\\x0a\\x1b[2J\\x7f\\x85\\u202e\\u2028z"));
    QCOMPARE(withVisibleControls(u"Grüße, 你好 😀 \\x"), QStringLiteral("Grüße, 你好 😀 \\x"));
}
