#include "TestCodePage.h"

#include "base/CodePage.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <rapidcheck.h>

#include <cstdio>
#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr std::string_view AskForThePage = "--page-of-the-system";
constexpr char32_t ByteOrderMark = 0xFEFF;

rc::Gen<char32_t> characterIn(char32_t first, char32_t last)
{
    return rc::gen::map(rc::gen::inRange<std::uint32_t>(first, last + 1),
                        [](std::uint32_t value) { return static_cast<char32_t>(value); });
}

/// Any character, those more often with which the rules of reading and writing deal.
rc::Gen<char32_t> anyCharacter()
{
    return rc::gen::weightedOneOf<char32_t>({
        {3, characterIn(0x00, 0x7F)},
        {6, characterIn(0x80, 0xFF)},
        {2, rc::gen::element(ByteOrderMark, U'\xEF', U'\xBB', U'\xBF', U'\xFFFD', U'\x20AC')},
        {3, characterIn(0x100, 0xD7FF)},
        {1, characterIn(0xE000, 0xFFFF)},
        {1, characterIn(0x10000, 0x10FFFF)},
    });
}

QString textOf(const std::vector<char32_t> &characters)
{
    QString text;
    for (const char32_t character : characters)
        text += QChar::fromUcs4(character);
    return text;
}

} // namespace

bool TestCodePage::runAsSecondProgram(int argc, char **argv)
{
    if (argc != 2 || argv[1] != AskForThePage)
        return false;
    const QCoreApplication app(argc, argv);
    std::puts(CodePage::ofSystem().name().constData());
    return true;
}

void TestCodePage::allPages()
{
    QTest::addColumn<QByteArray>("page");
    for (const char *page :
         {"windows-1250", "windows-1251", "windows-1252", "windows-1253", "windows-1254",
          "windows-1255", "windows-1256", "windows-1257", "windows-1258"})
        QTest::newRow(page) << QByteArray(page);
}

void TestCodePage::eachByteReadsAndWritesBack_data()
{
    allPages();
}

void TestCodePage::eachByteReadsAndWritesBack()
{
    QFETCH(const QByteArray, page);
    const CodePage codePage(page);
    QCOMPARE(codePage.name(), page);
    for (int value = 0; value < 256; ++value) {
        const QByteArray bytes(1, static_cast<char>(value));
        const QString text = codePage.decode(bytes);
        QCOMPARE(text.size(), 1);
        QCOMPARE(codePage.encode(text), bytes);
    }
}

void TestCodePage::charactersOfThePage_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("Polish") << "windows-1250"_ba
                            << "\x8C\xB9\xEA"_ba << u"Śąę"_s;
    QTest::newRow("Russian") << "windows-1251"_ba
                             << "\xC0\xFF"_ba << u"Ая"_s;
    QTest::newRow("Italian") << "windows-1252"_ba
                             << "perch\xE9 \x80"_ba << u"perché €"_s;
    QTest::newRow("Greek") << "windows-1253"_ba
                           << "\xE1\xF9"_ba << u"αω"_s;
    QTest::newRow("Turkish") << "windows-1254"_ba
                             << "\xFE\xDD"_ba << u"şİ"_s;
    QTest::newRow("Hebrew") << "windows-1255"_ba
                            << "\xE0\xFA"_ba << u"את"_s;
    QTest::newRow("Arabic") << "windows-1256"_ba
                            << "\xC7\xED"_ba << u"اي"_s;
    QTest::newRow("Lithuanian") << "windows-1257"_ba
                                << "\xE0\xFE"_ba << u"ąž"_s;
    QTest::newRow("Vietnamese") << "windows-1258"_ba
                                << "\xD0\xFE"_ba << u"Đ₫"_s;
}

void TestCodePage::charactersOfThePage()
{
    QFETCH(const QByteArray, page);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);
    const CodePage codePage(page);
    QCOMPARE(codePage.decode(bytes), text);
    QCOMPARE(codePage.encode(text), bytes);
}

void TestCodePage::asciiIsTheSameInEveryPage_data()
{
    allPages();
}

void TestCodePage::asciiIsTheSameInEveryPage()
{
    QFETCH(const QByteArray, page);
    const CodePage codePage(page);
    const QByteArray bytes = "v2.0\r\n pausa ,\"~\x7F"_ba;
    QCOMPARE(codePage.decode(bytes), QString::fromLatin1(bytes));
    QCOMPARE(codePage.encode(QString::fromLatin1(bytes)), bytes);
}

void TestCodePage::textBeyondThePageIsUtf8()
{
    const CodePage codePage("windows-1252");
    const QString text = u"Łukasz è qui 😀"_s;
    QCOMPARE(codePage.encode(text), text.toUtf8());
    QCOMPARE(codePage.decode(text.toUtf8()), text);
}

void TestCodePage::textWhoseBytesWouldReadAsUtf8IsUtf8()
{
    const CodePage codePage("windows-1252");
    const QString text = u"Ã©"_s; // C3 A9 in the page, which is "é" in UTF-8
    QCOMPARE(codePage.encode(text), "\xC3\x83\xC2\xA9"_ba);
    QCOMPARE(codePage.decode(codePage.encode(text)), text);
}

void TestCodePage::byteOrderMarkIsDropped()
{
    const CodePage codePage("windows-1252");
    QCOMPARE(codePage.decode("\xEF\xBB\xBFMario"), u"Mario"_s);
    QCOMPARE(codePage.decode("\xEF\xBB\xBF"), QString());
}

void TestCodePage::textThatBeginsWithTheMarkKeepsIt()
{
    const CodePage codePage("windows-1252");
    for (const QString &text : {u"\uFEFF"_s, u"\uFEFFMario"_s, u"\uFEFF\uFEFFMario"_s})
        QCOMPARE(codePage.decode(codePage.encode(text)), text);
}

void TestCodePage::oneInvalidSequenceMakesItTheCodePage()
{
    const CodePage codePage("windows-1252");
    QCOMPARE(codePage.decode("\xC3\xA8 \xE8"), u"Ã¨ è"_s);
    // Cut inside a sequence.
    QCOMPARE(codePage.decode("\xC3\xA8\xE2\x82"), u"Ã¨â‚"_s);
}

void TestCodePage::emptyTextIsNoBytes()
{
    const CodePage codePage("windows-1252");
    QCOMPARE(codePage.encode(QString()), QByteArray());
    QCOMPARE(codePage.decode(QByteArray()), QString());
}

void TestCodePage::unknownNameGivesWindows1252()
{
    const CodePage codePage("no such page");
    QCOMPARE(codePage.name(), "windows-1252"_ba);
    QCOMPARE(codePage.encode(u"€"_s), "\x80"_ba);
}

void TestCodePage::whatWasWrittenReadsBackAsTheSameText_data()
{
    allPages();
}

void TestCodePage::whatWasWrittenReadsBackAsTheSameText()
{
    QFETCH(const QByteArray, page);
    const CodePage codePage(page);
    QVERIFY(rc::check("decode(encode(text)) == text", [&codePage] {
        const QString text = textOf(*rc::gen::container<std::vector<char32_t>>(anyCharacter()));
        RC_ASSERT(codePage.decode(codePage.encode(text)) == text);
    }));
}

void TestCodePage::bytesInThePageAreWrittenBackAsTheyWere_data()
{
    allPages();
}

void TestCodePage::bytesInThePageAreWrittenBackAsTheyWere()
{
    QFETCH(const QByteArray, page);
    const CodePage codePage(page);
    QVERIFY(rc::check("encode(decode(bytes)) == bytes", [&codePage] {
        const auto values = *rc::gen::container<std::vector<char>>(rc::gen::arbitrary<char>());
        const QByteArray bytes(values.data(), static_cast<qsizetype>(values.size()));
        RC_PRE(!readsAsUtf8(bytes));
        RC_ASSERT(codePage.encode(codePage.decode(bytes)) == bytes);
    }));
}

void TestCodePage::pageOfTheSystemFollowsTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("page");
    QTest::newRow("none") << u"C"_s << "windows-1252"_ba;
    QTest::newRow("English") << u"en_US.UTF-8"_s << "windows-1252"_ba;
    QTest::newRow("Italian") << u"it_IT.UTF-8"_s << "windows-1252"_ba;
    QTest::newRow("Polish") << u"pl_PL.UTF-8"_s << "windows-1250"_ba;
    QTest::newRow("Russian") << u"ru_RU.UTF-8"_s << "windows-1251"_ba;
    QTest::newRow("Serbian") << u"sr_RS.UTF-8"_s << "windows-1251"_ba;
    QTest::newRow("Greek") << u"el_GR.UTF-8"_s << "windows-1253"_ba;
    QTest::newRow("Turkish") << u"tr_TR.UTF-8"_s << "windows-1254"_ba;
    QTest::newRow("Hebrew") << u"he_IL.UTF-8"_s << "windows-1255"_ba;
    QTest::newRow("Arabic") << u"ar_EG.UTF-8"_s << "windows-1256"_ba;
    QTest::newRow("Lithuanian") << u"lt_LT.UTF-8"_s << "windows-1257"_ba;
    QTest::newRow("Vietnamese") << u"vi_VN.UTF-8"_s << "windows-1258"_ba;
    QTest::newRow("no single-byte page") << u"ja_JP.UTF-8"_s << "windows-1252"_ba;
}

void TestCodePage::pageOfTheSystemFollowsTheLocale()
{
    QFETCH(const QString, locale);
    QFETCH(const QByteArray, page);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, locale);
    environment.remove(u"LANGUAGE"_s);
    // Qt warns of a locale that is not installed here.
    environment.remove(u"QT_FATAL_WARNINGS"_s);
    QProcess second;
    second.setProcessEnvironment(environment);
    second.start(QCoreApplication::applicationFilePath(),
                 {QString::fromLatin1(AskForThePage.data(), AskForThePage.size())});
    QVERIFY(second.waitForFinished());
    QCOMPARE(second.readAllStandardOutput().trimmed(), page);
}
