#include "TestVCardLines.h"

#include "addressbook/VCardLines.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The text of the first property in these lines.
QString firstText(const QByteArray &lines)
{
    const auto line = VCardLines(lines).next();
    return line ? VCardProperty(*line).text(CodePage("windows-1252")) : u"(no line)"_s;
}

} // namespace

void TestVCardLines::linesEnd()
{
    const QByteArray content = "a\r\nb\nc\rd\r\n\r\n\xEF\xBB\xBF"
                               "e";
    VCardLines lines(content);
    QByteArrayList read;
    while (const auto line = lines.next())
        read += *line;
    QCOMPARE(read, (QByteArrayList{"a", "b", "c", "d", "", "e"}));
}

void TestVCardLines::foldsAreUndone_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("text");
    QTest::newRow("blank") << "NOTE:Hel\r\n lo"_ba << u"Hello"_s;
    QTest::newRow("tab") << "NOTE:Hel\r\n\tlo"_ba << u"Hello"_s;
    QTest::newRow("LF") << "NOTE:Hel\n lo"_ba << u"Hello"_s;
    QTest::newRow("CR") << "NOTE:Hel\r lo"_ba << u"Hello"_s;
    QTest::newRow("only one blank goes") << "NOTE:Hel\r\n  lo"_ba << u"Hel lo"_s;
    QTest::newRow("several") << "NOTE:H\r\n e\r\n l\r\n lo"_ba << u"Hello"_s;
    QTest::newRow("a name") << "NO\r\n TE:Hello"_ba << u"Hello"_s;
    QTest::newRow("within a character")
        << "NOTE:Citt\xC3\r\n \xA0 di Pisa"_ba << u"Città di Pisa"_s;
    QTest::newRow("soft break") << "NOTE;ENCODING=QUOTED-PRINTABLE:Hel=\r\nlo"_ba << u"Hello"_s;
    QTest::newRow("soft break keeps a blank")
        << "NOTE;QUOTED-PRINTABLE:Hel=\r\n lo"_ba << u"Hel lo"_s;
    QTest::newRow("soft break in small letters")
        << "NOTE;encoding=quoted-printable:Hel=\r\nlo"_ba << u"Hello"_s;
    QTest::newRow("fold of what may break softly")
        << "NOTE;QUOTED-PRINTABLE:Hel\r\n lo"_ba << u"Hello"_s;
    QTest::newRow("no soft break elsewhere")
        << "NOTE:1+1=\r\nX-Q;QUOTED-PRINTABLE:"_ba << u"1+1="_s;
    QTest::newRow("no fold after an empty line") << "NOTE:Hel\r\n\r\n lo"_ba << u"Hel"_s;
}

void TestVCardLines::foldsAreUndone()
{
    QFETCH(const QByteArray, lines);
    QTEST(firstText(lines), "text");
}

void TestVCardLines::textIsDecoded_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("text");
    QTest::newRow("UTF-8") << "NOTE:Citt\xC3\xA0"_ba << u"Città"_s;
    QTest::newRow("code page") << "NOTE:Citt\xE0"_ba << u"Città"_s;
    QTest::newRow("named UTF-8") << "NOTE;CHARSET=utf-8:Citt\xC3\xA0"_ba << u"Città"_s;
    QTest::newRow("named Latin") << "NOTE;CHARSET=ISO-8859-1:Citt\xE0"_ba << u"Città"_s;
    QTest::newRow("named Cyrillic") << "NOTE;CHARSET=windows-1251:\xCF\xE8\xE7\xE0"_ba << u"Пиза"_s;
    QTest::newRow("in quotes") << "NOTE;CHARSET=\"windows-1251\":\xCF\xE8\xE7\xE0"_ba << u"Пиза"_s;
    QTest::newRow("unknown") << "NOTE;CHARSET=X-NOBODY:Citt\xE0"_ba << u"Città"_s;
    QTest::newRow("untrue") << "NOTE;CHARSET=UTF-8:Citt\xE0"_ba << u"Città"_s;
    QTest::newRow("quoted-printable of the code page")
        << "NOTE;ENCODING=QUOTED-PRINTABLE:Citt=E0"_ba << u"Città"_s;
    QTest::newRow("quoted-printable of a named one")
        << "NOTE;CHARSET=windows-1251;ENCODING=quoted-printable:=cf=E8=E7=E0"_ba << u"Пиза"_s;
    QTest::newRow("what is not quoted-printable stays")
        << "NOTE;QUOTED-PRINTABLE:1=1 =G1=1G =3"_ba << u"1=1 =G1=1G =3"_s;
    QTest::newRow("equals without an encoding") << "NOTE:a=20b"_ba << u"a=20b"_s;
    QTest::newRow("base64 of 2.1") << "NOTE;BASE64:Q2l0dMOg"_ba << u"Città"_s;
    QTest::newRow("base64 of 3.0") << "NOTE;ENCODING=b:Q2l0dMOg"_ba << u"Città"_s;
}

void TestVCardLines::textIsDecoded()
{
    QFETCH(const QByteArray, line);
    QTEST(firstText(line), "text");
}

void TestVCardLines::escapesAreUndone_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("line ends") << "a\\nb\\Nc"_ba << u"a\nb\nc"_s;
    QTest::newRow("separators") << "a\\,b\\;c"_ba << u"a,b;c"_s;
    QTest::newRow("backslash") << "a\\\\nb"_ba << u"a\\nb"_s;
    QTest::newRow("any other") << "C:\\Temp"_ba << u"C:\\Temp"_s;
    QTest::newRow("at the end") << "a\\"_ba << u"a\\"_s;
    QTest::newRow("not escaped") << "a,b;c:d"_ba << u"a,b;c:d"_s;
}

void TestVCardLines::escapesAreUndone()
{
    QFETCH(const QByteArray, value);
    QTEST(firstText("NOTE:" + value), "text");
}

void TestVCardLines::partsOfALine()
{
    const VCardProperty plain("Item1.tel;Type=cell,Voice;Pref:1:2");
    QCOMPARE(plain.name(), "TEL"_ba);
    QVERIFY(plain.has("TYPE", "CELL"));
    QVERIFY(plain.has("TYPE", "VOICE"));
    QVERIFY(plain.has("TYPE", "PREF"));
    QVERIFY(!plain.has("TYPE", "FAX"));
    QVERIFY(!plain.has("PREF", "CELL"));
    QCOMPARE(plain.text(CodePage("windows-1252")), u"1:2"_s);

    const VCardProperty quoted("TEL;X-A=\"1:2;3.4\";TYPE=\"voice,fax\":5");
    QCOMPARE(quoted.name(), "TEL"_ba);
    QVERIFY(quoted.has("X-A", "1:2;3.4"));
    QVERIFY(quoted.has("TYPE", "FAX"));
    QCOMPARE(quoted.text(CodePage("windows-1252")), u"5"_s);
}

void TestVCardLines::lineWithoutColonIsNothing()
{
    for (const char *line : {"", "TEL", "TEL;TYPE=FAX"}) {
        const VCardProperty property(line);
        QCOMPARE(property.name(), ""_ba);
        QVERIFY(!property.hasContent());
        QCOMPARE(property.isBroken(), *line != '\0');
    }
}

void TestVCardLines::quoteThatIsNeverClosedIsACharacter()
{
    const VCardProperty property("TEL;X-L=5\"x;TYPE=FAX:1");
    QCOMPARE(property.name(), "TEL"_ba);
    QVERIFY(property.has("TYPE", "FAX"));
    QCOMPARE(property.text(CodePage("windows-1252")), u"1"_s);
    QVERIFY(!property.isBroken());
}

void TestVCardLines::componentsAreParted()
{
    const CodePage codePage("windows-1252");
    QCOMPARE(VCardProperty("ADR:a;;b\\;c\\\\; d ;").components(codePage),
             (QStringList{u"a"_s, u""_s, u"b;c\\"_s, u"d"_s, u""_s}));
    QCOMPARE(VCardProperty("ADR:").components(codePage), QStringList{u""_s});
    QCOMPARE(VCardProperty("ADR:a\\").components(codePage), QStringList{u"a\\"_s});
    QCOMPARE(VCardProperty("ADR;QUOTED-PRINTABLE:a=0D=0Ab=5C;c;d").components(codePage),
             (QStringList{u"a\r\nb;c"_s, u"d"_s}));
}

void TestVCardLines::lowestNumberIsPreferred()
{
    QCOMPARE(VCardProperty("ADR;PREF:x").preference(), 1);
    QCOMPARE(VCardProperty("ADR;TYPE=work,pref:x").preference(), 1);
    QCOMPARE(VCardProperty("ADR;PREF=1:x").preference(), 1);
    QCOMPARE(VCardProperty("ADR;PREF=100:x").preference(), 100);
    QVERIFY(VCardProperty("ADR:x").preference() > 100);
    QVERIFY(VCardProperty("ADR;PREF=much:x").preference() > 100);
}
