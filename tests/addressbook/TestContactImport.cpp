#include "TestContactImport.h"

#include "addressbook/ContactImport.h"
#include "base/modMain.h"

#include <QStringEncoder>
#include <QTest>

#include <rapidcheck.h>

#include <algorithm>
#include <array>
#include <string>

using namespace Qt::StringLiterals;

namespace {

ImportedContacts import(const QByteArray &content)
{
    return importContacts(content, CodePage("windows-1252"));
}

/// "display name|name|company|address" of each.
QStringList shown(const ImportedContacts &imported)
{
    QStringList texts;
    for (const Contact &contact : imported.contacts)
        texts += QStringList{contact[ContactColumn::DisplayName], contact[ContactColumn::Name],
                             contact[ContactColumn::Company], contact[ContactColumn::Email]}
                     .join(u'|');
    return texts;
}

/// The only contact of a file, or one without address.
Contact only(const QByteArray &content)
{
    const ImportedContacts imported = import(content);
    return imported.contacts.size() == 1 ? imported.contacts.front() : Contact();
}

constexpr std::array BookOrder{
    ContactColumn::DisplayName, ContactColumn::Email,    ContactColumn::Name,
    ContactColumn::Company,     ContactColumn::Address,  ContactColumn::City,
    ContactColumn::State,       ContactColumn::PostCode, ContactColumn::Country,
    ContactColumn::Telephone,   ContactColumn::Fax,      ContactColumn::Mobile,
    ContactColumn::Notes,
};

/// The contact as it is after a book was saved and opened: one line of fields, nothing quoted,
/// line ends as four characters.
Contact throughABook(const Contact &contact)
{
    QString line;
    for (const ContactColumn column : BookOrder) {
        QString field = contact[column];
        line += field.replace(u"\r\n"_s, u"\\n\\r"_s) + u';';
    }
    Contact read;
    if (line.contains(u'\r') || line.contains(u'\n'))
        return read;
    QString rest = line;
    for (const ContactColumn column : BookOrder) {
        const qsizetype end = column == ContactColumn::Notes ? rest.size() - 1 : rest.indexOf(u';');
        read[column] = rest.left(end);
        rest = rest.mid(end + 1);
        if (column != ContactColumn::DisplayName && column != ContactColumn::Email)
            read[column].replace(u"\\n\\r"_s, u"\r\n"_s);
    }
    read[ContactColumn::Email] = read[ContactColumn::Email].section(u'#', 0, 0);
    return read;
}

/// Bytes in which the words and characters of both formats are frequent.
rc::Gen<QByteArray> anyFile()
{
    const auto word = rc::gen::element<std::string>(
        "BEGIN:VCARD\r\n", "END:VCARD\n", "\nFN", "\nN", "\nORG", "\r\nEMAIL", "\nADR", "\nTEL",
        "\nNOTE", "\nAGENT:\n", "\nPHOTO", ":", ";", ",", "\"", "\"\"", "a@b.it", ";a@b.it;",
        ";c@d.it", "\nEMAIL:e@f.it\n", "#", " ", "\t", "\r", "\n", "\r\n", "\\n\\r", "\\n", "\\;",
        "\\", "=", "=\r\n", "=3B", "=0D=0A", "Ada", "\xC3\xA0", "\xE0", ";CHARSET=UTF-8",
        ";CHARSET=utf-16", ";CHARSET=nobody", ";ENCODING=QUOTED-PRINTABLE", ";BASE64", ";CELL",
        ";PREF=1", "\xEF\xBB\xBF", "\xFF\xFE", ";;;;;;;;;;;");
    const auto byte =
        rc::gen::map(rc::gen::arbitrary<char>(), [](char value) { return std::string(1, value); });
    const auto words = rc::gen::container<std::vector<std::string>>(
        rc::gen::weightedOneOf<std::string>({{9, word}, {1, byte}}));
    const auto start = rc::gen::element<std::string>("", "BEGIN:VCARD\n", "Ada;a@b.it");
    return rc::gen::apply(
        [](const std::string &first, const std::vector<std::string> &rest) {
            QByteArray file = QByteArray::fromStdString(first);
            for (const std::string &one : rest)
                file += QByteArray::fromStdString(one);
            return file;
        },
        start, words);
}

bool isOneLine(const QString &text)
{
    return !text.contains(u'\r') && !text.contains(u'\n');
}

} // namespace

void TestContactImport::formatIsTheOneTheFileBeginsAs_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("contacts");
    QTest::newRow("card") << "BEGIN:VCARD\r\nFN:Ada\r\nEMAIL:a@b.it\r\nEND:VCARD\r\n"_ba
                          << QStringList{u"Ada|Ada||a@b.it"_s};
    QTest::newRow("card after blank lines, in small letters")
        << "\r\n\r\nbegin:vcard\r\nfn:Ada\r\nemail:a@b.it\r\n"_ba
        << QStringList{u"Ada|Ada||a@b.it"_s};
    QTest::newRow("lines") << "Ada;a@b.it\r\n"_ba << QStringList{u"Ada|Ada||a@b.it"_s};
    QTest::newRow("lines before a card")
        << "Ada;a@b.it\r\nBEGIN:VCARD\r\nFN:Eda\r\nEMAIL:c@d.it\r\n"_ba
        << QStringList{u"Ada|Ada||a@b.it"_s};
}

void TestContactImport::formatIsTheOneTheFileBeginsAs()
{
    QFETCH(const QByteArray, content);
    QTEST(shown(import(content)), "contacts");
}

void TestContactImport::byteOrderMarksAreUnderstood_data()
{
    QTest::addColumn<QByteArray>("content");
    const QString card = u"BEGIN:VCARD\r\nFN:Città Пиза\r\nEMAIL:a@b.it\r\nEND:VCARD\r\n"_s;
    const QString line = u"Città Пиза;a@b.it\r\n"_s;
    for (const auto encoding :
         {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QStringEncoder encode(encoding, QStringConverter::Flag::WriteBom);
        const char *name = QStringConverter::nameForEncoding(encoding);
        QTest::addRow("card in %s", name) << QByteArray(encode(card));
        encode.resetState();
        QTest::addRow("lines in %s", name) << QByteArray(encode(line));
    }
}

void TestContactImport::byteOrderMarksAreUnderstood()
{
    QFETCH(const QByteArray, content);
    QVERIFY(static_cast<unsigned char>(content.front()) >= 0xEF);
    QCOMPARE(shown(import(content)), QStringList{u"Città Пиза|Città Пиза||a@b.it"_s});
}

void TestContactImport::linesAreReadInTheirEncoding_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("UTF-8") << "Citt\xC3\xA0;a@b.it"_ba;
    QTest::newRow("code page") << "Citt\xE0;a@b.it"_ba;
}

void TestContactImport::linesAreReadInTheirEncoding()
{
    QFETCH(const QByteArray, content);
    QCOMPARE(shown(import(content)), QStringList{u"Città|Città||a@b.it"_s});
}

void TestContactImport::emptyFileGivesNothing()
{
    for (const QByteArray &content : {""_ba, "\r\n \r\n"_ba, "\xEF\xBB\xBF"_ba, "\xFF\xFE"_ba}) {
        const ImportedContacts imported = import(content);
        QVERIFY(imported.contacts.empty());
        QCOMPARE(imported.leftOut, QStringList());
        QCOMPARE(imported.fieldsLeftOut, 0);
    }
}

void TestContactImport::everyContactHasANameOrACompany_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("contact");
    QTest::newRow("name") << "Ada;a@b.it;Ada Mill"_ba << u"Ada|Ada Mill||a@b.it"_s;
    QTest::newRow("company") << "Ada;a@b.it;;Mill"_ba << u"Ada||Mill|a@b.it"_s;
    QTest::newRow("the display name") << "Ada;a@b.it"_ba << u"Ada|Ada||a@b.it"_s;
    QTest::newRow("blanks") << "Ada;a@b.it; ; "_ba << u"Ada|Ada||a@b.it"_s;
    QTest::newRow("the address") << ";a@b.it"_ba << u"a@b.it|a@b.it||a@b.it"_s;
    QTest::newRow("a display name that a name cannot be")
        << "\\n\\r;a@b.it"_ba << u"\\n\\r|a@b.it||a@b.it"_s;
    QTest::newRow("card with the address only")
        << "BEGIN:VCARD\nEMAIL:a@b.it"_ba << u"a@b.it|a@b.it||a@b.it"_s;
    QTest::newRow("card of a company")
        << "BEGIN:VCARD\nFN:Mill\nORG:Mill\nEMAIL:a@b.it"_ba << u"Mill||Mill|a@b.it"_s;
}

void TestContactImport::everyContactHasANameOrACompany()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, contact);
    QCOMPARE(shown(import(content)), QStringList{contact});
}

void TestContactImport::everyContactHasADisplayName_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::newRow("its own") << "Shown;a@b.it;Ada;Mill"_ba << u"Shown"_s;
    QTest::newRow("none") << ";a@b.it;Ada;Mill"_ba << u"Ada - Mill"_s;
    QTest::newRow("a blank") << " ;a@b.it;Ada"_ba << u"Ada"_s;
    QTest::newRow("none, a company") << ";a@b.it;;Mill"_ba << u"Mill"_s;
    QTest::newRow("card") << "BEGIN:VCARD\nFN:Ada\nORG:Mill\nEMAIL:a@b.it"_ba << u"Ada - Mill"_s;
}

void TestContactImport::everyContactHasADisplayName()
{
    QFETCH(const QByteArray, content);
    QTEST(only(content)[ContactColumn::DisplayName], "name");
}

void TestContactImport::blanksAroundNameAndAddressAreDropped()
{
    QCOMPARE(shown(import(" Shown ; a@b.it\t; Ada ; Mill \r\n")),
             QStringList{u"Shown|Ada|Mill|a@b.it"_s});
}

void TestContactImport::separatorsOfABookBecomeCommas()
{
    const Contact contact = only("\"Ada; A.\";a@b.it;\"Mill; Ada\";;\"Via 1; 2\";;;;;;;;\"x; y\"");
    QCOMPARE(contact[ContactColumn::DisplayName], u"Ada, A."_s);
    QCOMPARE(contact[ContactColumn::Name], u"Mill, Ada"_s);
    QCOMPARE(contact[ContactColumn::Address], u"Via 1, 2"_s);
    QCOMPARE(contact[ContactColumn::Notes], u"x; y"_s);
}

void TestContactImport::lineEndsBecomeBlanksButInTheNotes()
{
    const Contact contact = only("BEGIN:VCARD\nFN:Ada\\nMill\nEMAIL:a@b.it\nTITLE:x\n"
                                 "ADR;QUOTED-PRINTABLE:;;Via 1=0D=0AInt. 2=0AScala B;Pi=0Dsa\n");
    QCOMPARE(contact[ContactColumn::DisplayName], u"Ada Mill"_s);
    QCOMPARE(contact[ContactColumn::Name], u"Ada Mill"_s);
    QCOMPARE(contact[ContactColumn::Address], u"Via 1 Int. 2 Scala B"_s);
    QCOMPARE(contact[ContactColumn::City], u"Pi sa"_s);
}

void TestContactImport::lineEndsOfTheNotesAreCrLf()
{
    QCOMPARE(only("A;a@b.it;;;;;;;;;;;\"1\r\n2\n3\r4\n\r\n5\r\n\"")[ContactColumn::Notes],
             u"1\r\n2\r\n3\r\n4\r\n\r\n5\r\n"_s);
    QCOMPARE(only("BEGIN:VCARD\nEMAIL:a@b.it\nNOTE:1\\n2\nNOTE:3")[ContactColumn::Notes],
             u"1\r\n2\r\n3"_s);
}

void TestContactImport::lineEndsOfABookAreUnderstood()
{
    const Contact contact =
        only("A;a@b.it;Ada\\n\\rMill;;Via 1\\n\\rInt. 2;;;;;;;;one\\n\\r\\n\\rtwo\\n\\\\r;\r\n");
    QCOMPARE(contact[ContactColumn::Name], u"Ada Mill"_s);
    QCOMPARE(contact[ContactColumn::Address], u"Via 1 Int. 2"_s);
    QCOMPARE(contact[ContactColumn::Notes], u"one\r\n\r\ntwo\\n\\\\r"_s);
}

void TestContactImport::displayNameKeepsWhatABookDoesNotReadThere()
{
    QCOMPARE(shown(import("a\\n\\rb;a@b.it")), QStringList{u"a\\n\\rb|a b||a@b.it"_s});
}

void TestContactImport::addressThatNoBookKeepsIsLeftOut_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("none") << u""_s;
    QTest::newRow("no address") << u"ada"_s;
    QTest::newRow("two") << u"a@b.it,c@d.it"_s;
    QTest::newRow("a name beside it") << u"Ada<a@b.it>"_s;
    QTest::newRow("control character") << u"a\u0001@b.it"_s;
    QTest::newRow("parted by a book") << u"a@b.it;c"_s;
    QTest::newRow("blank") << u"a b@c.it"_s;
    QTest::newRow("tab") << u"a\tb@c.it"_s;
    QTest::newRow("no-break space") << u"a\u00A0b@c.it"_s;
}

void TestContactImport::addressThatNoBookKeepsIsLeftOut()
{
    QFETCH(const QString, address);
    const ImportedContacts lines = import(u"Ada;\"%1\"\r\n"_s.arg(address).toUtf8());
    const ImportedContacts cards =
        import(u"BEGIN:VCARD\r\nFN:Ada\r\nEMAIL:%1\r\nEND:VCARD\r\n"_s.arg(address).toUtf8());
    QVERIFY(lines.contacts.empty());
    QVERIFY(cards.contacts.empty());
    QCOMPARE(lines.leftOut, QStringList{u"Ada - "_s + address});
    QCOMPARE(cards.leftOut, QStringList{u"Ada - "_s + address});
}

void TestContactImport::commentsOfBooksAreDropped()
{
    const ImportedContacts lines = import("Ada;a@b.it#moved;Ada;\r\nBen;b#c@b.it\r\n");
    QCOMPARE(lines.contacts.size(), std::size_t{1});
    QCOMPARE(lines.contacts.front()[ContactColumn::Email], u"a@b.it"_s);
    QCOMPARE(lines.leftOut, QStringList{u"Ben - b"_s});
    // A card has no comments, and a book would cut the address.
    const ImportedContacts cards =
        import("BEGIN:VCARD\r\nFN:Ada\r\nEMAIL:a@b.it#1\r\nEND:VCARD\r\n");
    QVERIFY(cards.contacts.empty());
    QCOMPARE(cards.leftOut, QStringList{u"Ada - a@b.it#1"_s});
}

void TestContactImport::linesWithoutAddressAreLeftOut()
{
    const ImportedContacts imported = import("Shown as;E-mail;Name;Company\r\n"
                                             "My friends\r\n"
                                             "\r\n"
                                             ";;;;;\r\n"
                                             "Ada;a@b.it\r\n"
                                             "Eda\n2;\"e@\r\nf\";;Mill\r\n");
    QCOMPARE(shown(imported), QStringList{u"Ada|Ada||a@b.it"_s});
    QCOMPARE(imported.leftOut,
             (QStringList{u"Name - E-mail"_s, u"My friends - "_s, u"Eda - "_s, u"Mill - e@ f"_s}));
}

void TestContactImport::cardsWithoutAddressAreLeftOut()
{
    const ImportedContacts imported =
        import("BEGIN:VCARD\nFN:Ada\nEND:VCARD\n"
               "BEGIN:VCARD\nORG:Mill\nEMAIL:mill\nEMAIL:mill.it\nEND:VCARD\n"
               "BEGIN:VCARD\nTITLE:Boss\nEND:VCARD\n"
               "BEGIN:VCARD\nFN:Eda\nEMAIL:eda\nEMAIL:e@f.it\nEND:VCARD\n");
    QCOMPARE(shown(imported), QStringList{u"Eda|Eda||e@f.it"_s});
    QCOMPARE(imported.leftOut,
             (QStringList{u"Ada - "_s, u"Mill - mill, mill.it"_s, u" - "_s, u"Eda - eda"_s}));
    QCOMPARE(imported.fieldsLeftOut, 1);
}

void TestContactImport::eachAddressOfACardIsAContact()
{
    const ImportedContacts imported =
        import("BEGIN:VCARD\nFN:Ada\nORG:Mill\nTEL:1\nNOTE:x\nEMAIL:a@b.it\nEMAIL:c@d.it\n"
               "EMAIL:a@b.it\nEND:VCARD\n");
    QCOMPARE(shown(imported),
             (QStringList{u"Ada - Mill|Ada|Mill|a@b.it"_s, u"Ada - Mill|Ada|Mill|c@d.it"_s}));
    for (const Contact &contact : imported.contacts) {
        QCOMPARE(contact[ContactColumn::Telephone], u"1"_s);
        QCOMPARE(contact[ContactColumn::Notes], u"x"_s);
    }
}

void TestContactImport::leftOutFieldsAreCountedOnceACard()
{
    const ImportedContacts imported =
        import("BEGIN:VCARD\nFN:Ada\nURL:1\nBDAY:2\nEMAIL:a@b.it\nEMAIL:c@d.it\nEND:VCARD\n"
               "BEGIN:VCARD\nFN:Eda\nURL:1\nEMAIL:e@f.it\nEND:VCARD\n");
    QCOMPARE(imported.contacts.size(), std::size_t{3});
    QCOMPARE(imported.fieldsLeftOut, 3);
}

void TestContactImport::anyFileGivesContactsThatABookKeeps()
{
    const CodePage codePage("windows-1252");
    QVERIFY(rc::check("each contact keeps the promise", [&codePage] {
        const ImportedContacts imported = importContacts(*anyFile(), codePage);
        RC_CLASSIFY(!imported.contacts.empty());
        for (const Contact &contact : imported.contacts) {
            RC_ASSERT(IsValidEmail(contact[ContactColumn::Email]));
            RC_ASSERT(!contact[ContactColumn::DisplayName].isEmpty());
            RC_ASSERT(!contact[ContactColumn::Name].isEmpty() ||
                      !contact[ContactColumn::Company].isEmpty());
            RC_ASSERT(throughABook(contact) == contact);
        }
        RC_ASSERT(std::all_of(imported.leftOut.begin(), imported.leftOut.end(), isOneLine));
    }));
}

void TestContactImport::oddFilesAreRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("contacts");
    QTest::addColumn<int>("leftOut");
    const QByteArray much(1 << 20, 'x');
    const QByteArray quotes(1 << 20, '"');
    const auto often = [](const char *text) { return QByteArray(text).repeated(10'000); };
    QTest::newRow("a card that only begins") << "BEGIN:VCARD"_ba << 0 << 1;
    QTest::newRow("a long line") << much + ";a@b.it\r\n" << 1 << 0;
    QTest::newRow("a line of quotes") << quotes + "\";a@b.it\r\n" << 1 << 0;
    QTest::newRow("lines of separators") << often(";;;;;;;;;;;;;;\r\n") << 0 << 0;
    QTest::newRow("quotes that open") << often("\"A;a@b.it;\"B\r\n") << 10'000 << 0;
    QTest::newRow("NUL") << "A\0B;a@b.it\r\n\0\r\n"_ba << 1 << 1;
    QTest::newRow("NULs in a card") << "BEGIN:VCARD\nFN:A\0B\n\0\nEMAIL:a@b.it\n\0"_ba << 1 << 0;
    QTest::newRow("a long value") << "BEGIN:VCARD\nEMAIL:a@b.it\nNOTE:" + much << 1 << 0;
    QTest::newRow("a long name of a property")
        << "BEGIN:VCARD\nEMAIL:a@b.it\n" + much + ":1" << 1 << 0;
    QTest::newRow("a quote in a name")
        << "BEGIN:VCARD\nEMAIL:a@b.it\nTEL;\"" + much + ":1" << 1 << 0;
    QTest::newRow("many parameters") << "BEGIN:VCARD\nEMAIL" + often(";X=1") + ":a@b.it" << 1 << 0;
    QTest::newRow("many folds") << "BEGIN:VCARD\nEMAIL:a@b.it\nNOTE:" + often("x\n ") << 1 << 0;
    QTest::newRow("many soft breaks")
        << "BEGIN:VCARD\nEMAIL:a@b.it\nNOTE;QUOTED-PRINTABLE:" + often("=\n") << 1 << 0;
    QTest::newRow("many addresses of much text")
        << "BEGIN:VCARD\nNOTE:" + much + often("\nEMAIL:a") << 0 << 1;
    QTest::newRow("many cards") << often("BEGIN:VCARD\nEMAIL:a@b.it\n") << 10'000 << 0;
    QTest::newRow("many addresses")
        << "BEGIN:VCARD\nNOTE:" + much + "\nFN:" + much + often("\nEMAIL:a@b.it") << 1 << 0;
}

void TestContactImport::oddFilesAreRead()
{
    QFETCH(const QByteArray, content);
    const ImportedContacts imported = import(content);
    QTEST(static_cast<int>(imported.contacts.size()), "contacts");
    QTEST(static_cast<int>(imported.leftOut.size()), "leftOut");
}
