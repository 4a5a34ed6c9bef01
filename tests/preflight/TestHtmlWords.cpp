#include "TestHtmlWords.h"

#include "preflight/HtmlWords.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestHtmlWords::words_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("words");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("no tag") << u" Dear  friend\r\n"_s << u"Dear friend"_s;
    QTest::newRow("tags part words") << u"<p>Dear<br>friend</p>"_s << u"Dear friend"_s;
    QTest::newRow("comment") << u"a<!-- b > c -->d"_s << u"a d"_s;
    QTest::newRow("style") << u"<STYLE>p > a {}</STYLE >a"_s << u"a"_s;
    QTest::newRow("script") << u"<script>if (a<b) x()</script>a"_s << u"a"_s;
    QTest::newRow("title") << u"<html><title>News</title><body>a"_s << u"a"_s;
    QTest::newRow("hard blanks") << u"<p>&nbsp;&NBSP;</p>"_s << QString();
    QTest::newRow("style without its end") << u"a<style>p {}"_s << u"a"_s;
}

void TestHtmlWords::words()
{
    QFETCH(QString, html);
    QFETCH(QString, words);
    QCOMPARE(wordsOfHtml(html), words);
}

void TestHtmlWords::aPictureIsFoundInAnyCase()
{
    QVERIFY(hasPicture(u"<p><IMG SRC=\"a.gif\">"));
    QVERIFY(!hasPicture(u"<p>an image"));
}

void TestHtmlWords::halfATagAtTheEndEndsTheText()
{
    QCOMPARE(wordsOfHtml(u"a <img src="), u"a"_s);
    QCOMPARE(wordsOfHtml(u"a <"), u"a"_s);
    QCOMPARE(wordsOfHtml(u"a <!--"), u"a"_s);
}
