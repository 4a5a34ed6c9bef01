#include "TestRegFile.h"

#include "settings/RegFile.h"

#include <QRandomGenerator>
#include <QTest>

#include <string>

namespace {

using namespace std::string_literals;

constexpr char Key[] = "HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta";
const std::string Heading = "["s + Key + "]\r\n";

RegFile parsed(const std::string &bytes)
{
    auto file = RegFile::fromBytes(bytes);
    return file ? *file : RegFile();
}

std::string textOf(const RegFile &file, const std::string &name)
{
    const RegFile::Value *value = file.find(Key, name);
    const auto *text = value == nullptr ? nullptr : std::get_if<std::string>(value);
    return text == nullptr ? "(none)" : *text;
}

std::string randomBytes(QRandomGenerator &random, const std::string &preferred)
{
    std::string bytes;
    for (int length = random.bounded(24); length > 0; --length) {
        const bool any = random.bounded(3) == 0;
        bytes += any ? static_cast<char>(random.bounded(256))
                     : preferred[static_cast<std::size_t>(
                           random.bounded(static_cast<int>(preferred.size())))];
    }
    return bytes;
}

} // namespace

void TestRegFile::newFileIsWrittenAsTheRegistryEditorWritesIt()
{
    RegFile file;
    file.set(Key, "Server", "mail.example:587"s);
    file.set(Key, "Ricevuta", 1U);
    file.set(Key, "DefaultDocPath", "C:\\Documenti \"Sorvanta\"\\"s);
    file.set(Key, "", "the key's own"s);
    file.set(Key, "Odd", "a\r\nb"s);
    file.addKey(std::string(Key) + "\\Below");
    QCOMPARE(file.toBytes(), "REGEDIT4\r\n"
                             "\r\n"
                             "[HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta]\r\n"
                             "\"Server\"=\"mail.example:587\"\r\n"
                             "\"Ricevuta\"=dword:00000001\r\n"
                             "\"DefaultDocPath\"=\"C:\\\\Documenti \\\"Sorvanta\\\"\\\\\"\r\n"
                             "@=\"the key's own\"\r\n"
                             "\"Odd\"=hex(1):61,0d,0a,62,00\r\n"
                             "\r\n"
                             "[HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta\\Below]\r\n"s);
}

void TestRegFile::fileWrittenByHandIsRead()
{
    const RegFile file = parsed("\n  [hkey_current_user\\software\\CALVESSA\\Sorvanta]  \n"
                                "  \"server\" =\"not read: a blank before the sign\"\n"
                                "  \"Server\"=\"mail.example\"  \n"
                                "\"Language\"=DWORD:1\n"
                                "\"Odd\"=HEX(1):41, 42\n");
    QVERIFY(file.hasKey(Key));
    QCOMPARE(textOf(file, "Server"), "mail.example"s);
    QCOMPARE(*file.find(Key, "Language"), RegFile::Value(1U));
    QCOMPARE(textOf(file, "Odd"), "AB"s);
}

void TestRegFile::backslashThatEscapesNothingIsItself()
{
    QCOMPARE(textOf(parsed(Heading + "\"P\"=\"C:\\new\\x41\"\r\n"), "P"), "C:\\new\\x41"s);
}

void TestRegFile::linesThatSayNothingAreKeptAsTheyStand()
{
    const std::string damaged = "; a comment\r\n"
                                "\"Server\"=\"no closing quote\r\n"
                                "\"Language\"=dword:xyz\r\n"
                                "\"Language\"=dword:123456789\r\n"
                                "\"Bytes\"=hex:01,02\r\n"
                                "\"Odd\"=hex(1):41,,42\r\n"
                                "\"More\"=\"text\" and more\r\n"
                                "garbage \xff\x01\r\n"
                                "=\r\n"
                                "\"Gone\"=-\r\n";
    RegFile file = parsed(Heading + damaged);
    for (const char *name : {"Server", "Language", "Bytes", "Odd", "More", "Gone"})
        QCOMPARE(textOf(file, name), "(none)"s);
    file.set(Key, "Server", "mail.example"s);
    QCOMPARE(file.toBytes(), Heading + damaged + "\"Server\"=\"mail.example\"\r\n");
    QVERIFY(file.erase(Key, "Server"));
    QCOMPARE(file.toBytes(), Heading + damaged);
}

void TestRegFile::valuesUnderAnUnreadableHeadingBelongToNoKey()
{
    for (const std::string heading : {"[HKEY_CURRENT_USER\\Soft\r\n", "[-HKEY_CURRENT_USER]\r\n"}) {
        const std::string lost = heading + "\"Server\"=\"lost\"\r\n";
        RegFile file = parsed(Heading + lost);
        QCOMPARE(textOf(file, "Server"), "(none)"s);
        file.set(Key, "Server", "found"s);
        QCOMPARE(file.toBytes(), Heading + "\"Server\"=\"found\"\r\n" + lost);
    }
}

void TestRegFile::valueIsReplacedWhereItStands()
{
    RegFile file = parsed(Heading + "\"A\"=\"1\"\r\n\"server\"=\"old\"\r\n\"B\"=\"2\"\r\n");
    file.set(Key, "Server", 5U);
    QCOMPARE(file.toBytes(),
             Heading + "\"A\"=\"1\"\r\n\"server\"=dword:00000005\r\n\"B\"=\"2\"\r\n");
}

void TestRegFile::newValueFollowsTheOthersOfItsKey()
{
    const std::string other = "\r\n[HKEY_CURRENT_USER\\Other]\r\n\"X\"=\"y\"\r\n";
    RegFile file = parsed(Heading + "\"A\"=\"1\"\r\n" + other);
    file.set(Key, "B", "2"s);
    QCOMPARE(file.toBytes(), Heading + "\"A\"=\"1\"\r\n\"B\"=\"2\"\r\n" + other);
}

void TestRegFile::lastOfTwoLinesForTheSameValueHolds()
{
    RegFile file = parsed(Heading + "\"A\"=\"1\"\r\n\"a\"=\"2\"\r\n");
    QCOMPARE(textOf(file, "A"), "2"s);
    file.set(Key, "A", "3"s);
    QCOMPARE(textOf(file, "A"), "3"s);
}

void TestRegFile::deletedValueDoesNotComeBackFromAnEarlierLine()
{
    RegFile file = parsed(Heading + "\"A\"=\"1\"\r\n" + Heading + "\"a\"=\"2\"\r\n");
    QVERIFY(file.erase(Key, "A"));
    QCOMPARE(textOf(file, "A"), "(none)"s);
    QVERIFY(!file.erase(Key, "A"));
}

void TestRegFile::lineEndsStayAsTheyAre()
{
    RegFile file = parsed("REGEDIT4\n\n["s + Key + "]\n\"A\"=\"1\"\n\"B\"=\"2\"\r");
    file.set(Key, "A", "3"s);
    file.set(Key, "B", "4"s);
    QCOMPARE(file.toBytes(), "REGEDIT4\n\n["s + Key + "]\n\"A\"=\"3\"\n\"B\"=\"4\"\r");
}

void TestRegFile::lastLineWithoutAnEndIsEndedBeforeALineFollows()
{
    RegFile file = parsed(Heading + "\"A\"=\"1\"");
    file.set(Key, "B", "2"s);
    QCOMPARE(file.toBytes(), Heading + "\"A\"=\"1\"\r\n\"B\"=\"2\"\r\n");
    RegFile other = parsed("garbage");
    other.addKey(Key);
    QCOMPARE(other.toBytes(), "garbage\r\n\r\n" + Heading);
}

void TestRegFile::byteOrderMarkIsKeptAndPassedOver()
{
    RegFile file = parsed("\xef\xbb\xbf" + Heading + "\"A\"=\"1\"\r\n");
    QCOMPARE(textOf(file, "A"), "1"s);
    QVERIFY(file.toBytes().starts_with("\xef\xbb\xbf["));
}

void TestRegFile::utf16IsRefused()
{
    QVERIFY(!RegFile::fromBytes("\xff\xfe[\0"s));
    QVERIFY(!RegFile::fromBytes("\xfe\xff\0["s));
}

void TestRegFile::removedKeyTakesItsSectionsAndNoOthers()
{
    const std::string other =
        "[HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta2]\r\n\"X\"=\"y\"\r\n";
    RegFile file = parsed(Heading + "\"A\"=\"1\"\r\n" + other + Heading + "\"B\"=\"2\"\r\n");
    QVERIFY(file.hasKey("HKEY_CURRENT_USER\\Software"));
    QVERIFY(!file.hasSubkeys(Key));
    file.removeKey(Key);
    QVERIFY(!file.hasKey(Key));
    QCOMPARE(file.toBytes(), other);
}

void TestRegFile::anyTextReadsBack()
{
    QRandomGenerator random(20261121);
    for (int i = 0; i < 5000; ++i) {
        const std::string text = randomBytes(random, "\\\"=[]@;-, ax");
        RegFile file;
        file.set(Key, "Name", text);
        const RegFile again = parsed(file.toBytes());
        QCOMPARE(textOf(again, "Name"), text);
        QCOMPARE(again.toBytes(), file.toBytes());
    }
}

void TestRegFile::anyBytesAreAFile()
{
    QRandomGenerator random(20261122);
    for (int i = 0; i < 5000; ++i) {
        const std::string bytes = Heading +
                                  randomBytes(random, "\"\"\"@@==[]\\\r\ndword:hex(1),0") + "\n" +
                                  randomBytes(random, "\"\"\"@@==[]\\\r\ndword:hex(1),0");
        RegFile file = parsed(bytes);
        QCOMPARE(file.toBytes(), bytes);
        file.set(Key, "A", "1"s);
        QCOMPARE(textOf(parsed(file.toBytes()), "A"), "1"s);
    }
}
