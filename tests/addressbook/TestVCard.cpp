#include "TestVCard.h"

#include "addressbook/VCard.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

std::vector<ForeignContact> read(const QByteArray &content)
{
    return readVCards(content, CodePage("windows-1252"));
}

/// The contact of a card with these lines.
ForeignContact card(const QByteArray &lines)
{
    const auto contacts = read("BEGIN:VCARD\r\nVERSION:3.0\r\n" + lines + "\r\nEND:VCARD\r\n");
    return contacts.size() == 1 ? contacts.front() : ForeignContact();
}

QStringList namesIn(const QByteArray &content)
{
    QStringList names;
    for (const ForeignContact &contact : read(content))
        names += contact.fields[ContactColumn::Name];
    return names;
}

} // namespace

void TestVCard::cardOfATelephone()
{
    const auto contacts =
        read("BEGIN:VCARD\r\n"
             "VERSION:2.1\r\n"
             "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=4E=69=63=6F=6C=C3=B2;"
             "=50=69=65=72=6F;;;\r\n"
             "FN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=50=69=65=72=6F=20=4E="
             "69=63=6F=6C=\r\n"
             "=C3=B2\r\n"
             "TEL;CELL;PREF:+393331234567\r\n"
             "TEL;HOME:050123456\r\n"
             "TEL;WORK;FAX:050654321\r\n"
             "EMAIL;HOME:piero@example.it\r\n"
             "ADR;HOME:;;Via Roma 1;Pisa;PI;56100;Italia\r\n"
             "NOTE;ENCODING=QUOTED-PRINTABLE:One=0D=0A=\r\n"
             " Two\r\n"
             "PHOTO;ENCODING=BASE64;JPEG:/9j/4AAQSkZJRgABAQAAAQABAAD/2wBDAAEBAQ\r\n"
             " EBAQEBAQEBAQEBAQEBAQEBAQEBAQEBAQEBAQEB==\r\n"
             "\r\n"
             "END:VCARD\r\n");
    QCOMPARE(contacts.size(), std::size_t{1});
    const Contact &fields = contacts[0].fields;
    QCOMPARE(fields[ContactColumn::Name], u"Piero Nicolò"_s);
    QCOMPARE(fields[ContactColumn::Mobile], u"+393331234567"_s);
    QCOMPARE(fields[ContactColumn::Telephone], u"050123456"_s);
    QCOMPARE(fields[ContactColumn::Fax], u"050654321"_s);
    QCOMPARE(fields[ContactColumn::Address], u"Via Roma 1"_s);
    QCOMPARE(fields[ContactColumn::City], u"Pisa"_s);
    QCOMPARE(fields[ContactColumn::State], u"PI"_s);
    QCOMPARE(fields[ContactColumn::PostCode], u"56100"_s);
    QCOMPARE(fields[ContactColumn::Country], u"Italia"_s);
    QCOMPARE(fields[ContactColumn::Notes], u"One\r\n Two"_s);
    QCOMPARE(contacts[0].addresses, QStringList{u"piero@example.it"_s});
    QCOMPARE(contacts[0].fieldsLeftOut, 1); // the photo
}

void TestVCard::cardOfADesktop()
{
    const auto contacts =
        read("BEGIN:VCARD\n"
             "VERSION:3.0\n"
             "PRODID:-//Somebody//Contacts 1.0//EN\n"
             "N:Rossi;Anna;Maria;Dott.ssa;\n"
             "FN:Dott.ssa Anna Maria Rossi\n"
             "NICKNAME:Annina\n"
             "ORG:Parrocchia di San Piero;Coro;\n"
             "item1.EMAIL;type=INTERNET;type=pref:anna@example.it\n"
             "item1.X-ABLabel:_$!<Work>!$_\n"
             "EMAIL;type=INTERNET;type=HOME:rossi@example.org\n"
             "TEL;type=IPHONE;type=CELL;type=VOICE;type=pref:333 765\n"
             "TEL;type=HOME;type=FAX:050 9\n"
             "item2.ADR;type=HOME;type=pref:;;Via Roma 1\\nInterno 2;Pisa;;56100;\n"
             "item2.X-ABADR:it\n"
             "NOTE:Canta\\, e bene\\; sempre.\\nOgni domenica.\n"
             "BDAY:1970-01-01\n"
             "REV:2024-01-01T00:00:00Z\n"
             "UID:1234\n"
             "END:VCARD\n");
    QCOMPARE(contacts.size(), std::size_t{1});
    const Contact &fields = contacts[0].fields;
    QCOMPARE(fields[ContactColumn::DisplayName], u""_s);
    QCOMPARE(fields[ContactColumn::Name], u"Dott.ssa Anna Maria Rossi"_s);
    QCOMPARE(fields[ContactColumn::Company], u"Parrocchia di San Piero"_s);
    QCOMPARE(fields[ContactColumn::Address], u"Via Roma 1\nInterno 2"_s);
    QCOMPARE(fields[ContactColumn::Mobile], u"333 765"_s);
    QCOMPARE(fields[ContactColumn::Fax], u"050 9"_s);
    QCOMPARE(fields[ContactColumn::Notes], u"Canta, e bene; sempre.\nOgni domenica."_s);
    QCOMPARE(contacts[0].addresses, (QStringList{u"anna@example.it"_s, u"rossi@example.org"_s}));
    // The nickname, the choir, two labels, the birthday.
    QCOMPARE(contacts[0].fieldsLeftOut, 5);
}

void TestVCard::cardOfAMailProgram()
{
    const auto contacts = read("BEGIN:VCARD\r\n"
                               "VERSION:2.1\r\n"
                               "N;LANGUAGE=it;CHARSET=windows-1252:Nicol\xF2;Piero\r\n"
                               "FN;CHARSET=windows-1252:Piero Nicol\xF2\r\n"
                               "ORG;CHARSET=windows-1252:Caff\xE8 Nicol\xF2\r\n"
                               "TEL;WORK;VOICE:050 1\r\n"
                               "ADR;WORK;PREF;ENCODING=QUOTED-PRINTABLE:;;Via Roma 1=0D=0A=\r\n"
                               "Interno 2;Pisa;PI;56100;Italia\r\n"
                               "LABEL;WORK;PREF;ENCODING=QUOTED-PRINTABLE:Via Roma 1=0D=0A=\r\n"
                               "Pisa\r\n"
                               "X-MS-OL-DEFAULT-POSTAL-ADDRESS:2\r\n"
                               "EMAIL;PREF;INTERNET:piero@example.it\r\n"
                               "REV:20240101T000000Z\r\n"
                               "END:VCARD\r\n");
    QCOMPARE(contacts.size(), std::size_t{1});
    const Contact &fields = contacts[0].fields;
    QCOMPARE(fields[ContactColumn::Name], u"Piero Nicolò"_s);
    QCOMPARE(fields[ContactColumn::Company], u"Caffè Nicolò"_s);
    QCOMPARE(fields[ContactColumn::Address], u"Via Roma 1\r\nInterno 2"_s);
    QCOMPARE(fields[ContactColumn::City], u"Pisa"_s);
    QCOMPARE(fields[ContactColumn::Telephone], u"050 1"_s);
    QCOMPARE(contacts[0].addresses, QStringList{u"piero@example.it"_s});
    QCOMPARE(contacts[0].fieldsLeftOut, 2); // the label and the default
}

void TestVCard::cardOfTheLatestVersion()
{
    const auto contacts =
        read("BEGIN:VCARD\r\n"
             "VERSION:4.0\r\n"
             "UID:urn:uuid:4fbe8971-0bc3-424c-9c26-36c3e1eff6b1\r\n"
             "FN;PID=1.1:J. Doe\r\n"
             "N:Doe;J.;;;\r\n"
             "EMAIL;PID=1.1;PREF=2:jdoe@example.com\r\n"
             "TEL;PID=3.1,4.2;VALUE=uri;TYPE=\"voice,cell\":tel:+1-555-555-5555\r\n"
             "ADR;TYPE=work;LABEL=\"Floor 2: Main St; Any\":;;Main St 1;Anytown;CA;91921;U.S.A.\r\n"
             "KIND:individual\r\n"
             "END:VCARD\r\n");
    QCOMPARE(contacts.size(), std::size_t{1});
    const Contact &fields = contacts[0].fields;
    QCOMPARE(fields[ContactColumn::Name], u"J. Doe"_s);
    QCOMPARE(fields[ContactColumn::Mobile], u"+1-555-555-5555"_s);
    QCOMPARE(fields[ContactColumn::Telephone], u""_s);
    QCOMPARE(fields[ContactColumn::Address], u"Main St 1"_s);
    QCOMPARE(fields[ContactColumn::Country], u"U.S.A."_s);
    QCOMPARE(contacts[0].addresses, QStringList{u"jdoe@example.com"_s});
    QCOMPARE(contacts[0].fieldsLeftOut, 1); // the kind
}

void TestVCard::fileBeginsAsAVCard_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isCard");
    QTest::newRow("capitals") << "BEGIN:VCARD\r\n"_ba << true;
    QTest::newRow("small letters") << "begin:vcard\n"_ba << true;
    QTest::newRow("mixed") << "Begin:vCard\r"_ba << true;
    QTest::newRow("alone") << "BEGIN:VCARD"_ba << true;
    QTest::newRow("blank lines before") << "\r\n \t\r\nBEGIN:VCARD\r\n"_ba << true;
    QTest::newRow("blanks after") << "BEGIN:VCARD  \r\n"_ba << true;
    QTest::newRow("text before") << "Cards\r\nBEGIN:VCARD\r\n"_ba << false;
    QTest::newRow("more behind") << "BEGIN:VCARDS\r\n"_ba << false;
    QTest::newRow("a line of fields") << "BEGIN:VCARD;a@b.it\r\n"_ba << false;
    QTest::newRow("a calendar") << "BEGIN:VCALENDAR\r\n"_ba << false;
    QTest::newRow("empty") << ""_ba << false;
    QTest::newRow("blank lines") << "\r\n\r\n"_ba << false;
}

void TestVCard::fileBeginsAsAVCard()
{
    QFETCH(const QByteArray, content);
    QTEST(isVCard(content), "isCard");
}

void TestVCard::cardsOfSeveralProgramsMayStandInOneFile()
{
    QCOMPARE(namesIn("BEGIN:VCARD\nFN:Nicol\xC3\xB2\nEND:VCARD\n"
                     "BEGIN:VCARD\nFN:Nicol\xF2\nEND:VCARD\n"
                     "\xEF\xBB\xBF"
                     "BEGIN:VCARD\nFN:Nicola\nEND:VCARD\n"),
             (QStringList{u"Nicolò"_s, u"Nicolò"_s, u"Nicola"_s}));
}

void TestVCard::namesAreReadInAnyCase()
{
    const auto contacts = read("begin:vcard\nversion:3.0\nGroup-1.fn:Ada\nTel;Type=Fax:1\n"
                               "tel;cell:2\ng.Email;Type=internet:a@b.it\nend:VCard\n");
    QCOMPARE(contacts.size(), std::size_t{1});
    QCOMPARE(contacts[0].fields[ContactColumn::Name], u"Ada"_s);
    QCOMPARE(contacts[0].fields[ContactColumn::Fax], u"1"_s);
    QCOMPARE(contacts[0].fields[ContactColumn::Mobile], u"2"_s);
    QCOMPARE(contacts[0].addresses, QStringList{u"a@b.it"_s});
    QCOMPARE(contacts[0].fieldsLeftOut, 0);
}

void TestVCard::nameIsTheFormattedOne_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("name");
    QTest::newRow("formatted") << "N:Mill;Ada;;;\r\nFN:Countess Ada"_ba << u"Countess Ada"_s;
    QTest::newRow("the other order") << "FN:Countess Ada\r\nN:Mill;Ada;;;"_ba << u"Countess Ada"_s;
    QTest::newRow("empty") << "FN:\r\nN:Mill;Ada;;;"_ba << u"Ada Mill"_s;
    QTest::newRow("structured") << "N:Mill;Ada"_ba << u"Ada Mill"_s;
    QTest::newRow("structured in full") << "N:Mill;Ada;Bea;Dr.;jr."_ba << u"Dr. Ada Bea Mill jr."_s;
    QTest::newRow("structured with escapes") << "N:Mill\\; Co;Ada\\\\;;;"_ba << u"Ada\\ Mill; Co"_s;
    QTest::newRow("only a family") << "N:Mill;;;;"_ba << u"Mill"_s;
    QTest::newRow("none") << "N:;;;;\r\nFN: "_ba << u""_s;
}

void TestVCard::nameIsTheFormattedOne()
{
    QFETCH(const QByteArray, lines);
    const auto contact = card(lines);
    QTEST(contact.fields[ContactColumn::Name], "name");
    QCOMPARE(contact.fieldsLeftOut, 0);
}

void TestVCard::companyIsTheFirstComponent()
{
    const auto contact = card("FN:Ada\r\nORG:Mill\\; Sons;Sales;;Italy");
    QCOMPARE(contact.fields[ContactColumn::Company], u"Mill; Sons"_s);
    QCOMPARE(contact.fieldsLeftOut, 2);
}

void TestVCard::cardOfACompanyHasNoName()
{
    for (const char *lines : {"FN:Mill\r\nORG:Mill;", "ORG:Mill\r\nN:;;;;\r\nFN:Mill"}) {
        const auto contact = card(lines);
        QCOMPARE(contact.fields[ContactColumn::Name], u""_s);
        QCOMPARE(contact.fields[ContactColumn::Company], u"Mill"_s);
        QCOMPARE(contact.fieldsLeftOut, 0);
    }
}

void TestVCard::eachAddressIsReadOnce()
{
    const auto contact = card("EMAIL:a@b.it\r\nEMAIL;HOME: c@d.it \r\nEMAIL;WORK:a@b.it\r\n"
                              "EMAIL:\r\nEMAIL:mailto:c@d.it");
    QCOMPARE(contact.addresses, (QStringList{u"a@b.it"_s, u"c@d.it"_s}));
    QCOMPARE(contact.fieldsLeftOut, 0);
}

void TestVCard::addressMayBeAnUri()
{
    QCOMPARE(card("EMAIL;VALUE=uri:MailTo:a@b.it").addresses, QStringList{u"a@b.it"_s});
}

void TestVCard::firstPostalAddressIsTaken()
{
    const auto contact = card("ADR:;;;;;;\r\nADR:;;Via 1;Pisa\r\nADR:;;Via 2;Roma;RM");
    QCOMPARE(contact.fields[ContactColumn::Address], u"Via 1"_s);
    QCOMPARE(contact.fields[ContactColumn::City], u"Pisa"_s);
    QCOMPARE(contact.fields[ContactColumn::State], u""_s);
    QCOMPARE(contact.fieldsLeftOut, 1);
}

void TestVCard::preferredPostalAddressIsTaken_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("2.1") << "ADR;HOME:;;1;A;A\r\nADR;WORK;PREF:;;2;B"_ba;
    QTest::newRow("3.0") << "ADR;TYPE=home:;;1;A;A\r\nADR;TYPE=work,pref:;;2;B"_ba;
    QTest::newRow("4.0") << "ADR;TYPE=home:;;1;A;A\r\nADR;PREF=1:;;2;B"_ba;
    QTest::newRow("4.0, in order") << "ADR;PREF=2:;;1;A;A\r\nADR;PREF=1:;;2;B"_ba;
    QTest::newRow("comes first") << "ADR;PREF:;;2;B\r\nADR;HOME:;;1;A;A"_ba;
    QTest::newRow("the first of two") << "ADR;PREF:;;2;B\r\nADR;PREF:;;1;A;A"_ba;
    QTest::newRow("no number") << "ADR:;;2;B\r\nADR;PREF=much:;;1;A;A"_ba;
}

void TestVCard::preferredPostalAddressIsTaken()
{
    QFETCH(const QByteArray, lines);
    const auto contact = card(lines);
    QCOMPARE(contact.fields[ContactColumn::Address], u"2"_s);
    QCOMPARE(contact.fields[ContactColumn::City], u"B"_s);
    QCOMPARE(contact.fields[ContactColumn::State], u""_s);
    QCOMPARE(contact.fieldsLeftOut, 1);
}

void TestVCard::streetHasTheExtendedAddressAndTheBox()
{
    QCOMPARE(card("ADR:PO Box 5;Suite 3;Main St 1;Town").fields[ContactColumn::Address],
             u"Main St 1, Suite 3, PO Box 5"_s);
    QCOMPARE(card("ADR:PO Box 5;;;Town").fields[ContactColumn::Address], u"PO Box 5"_s);
}

void TestVCard::telephonesOfEachKind_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QStringList>("numbers"); // telephone, fax, mobile
    QTest::addColumn<int>("leftOut");
    QTest::newRow("one each") << "TEL;HOME:1\r\nTEL;WORK;FAX:2\r\nTEL;CELL:3"_ba
                              << QStringList{u"1"_s, u"2"_s, u"3"_s} << 0;
    QTest::newRow("types") << "TEL;TYPE=VOICE,CELL:3\r\nTEL;TYPE=work;TYPE=fax:2\r\nTEL:1"_ba
                           << QStringList{u"1"_s, u"2"_s, u"3"_s} << 0;
    QTest::newRow("the first of each")
        << "TEL:1\r\nTEL:4\r\nTEL;CELL:3\r\nTEL;CELL:5\r\nTEL;FAX:2\r\nTEL;FAX:6"_ba
        << QStringList{u"1"_s, u"2"_s, u"3"_s} << 3;
    QTest::newRow("empty ones") << "TEL:\r\nTEL: \r\nTEL:1"_ba << QStringList{u"1"_s, u""_s, u""_s}
                                << 0;
    QTest::newRow("URI") << "TEL;VALUE=uri:tel:+39-050\r\nTEL;CELL:TEL:+39-333"_ba
                         << QStringList{u"+39-050"_s, u""_s, u"+39-333"_s} << 0;
    QTest::newRow("types in a label")
        << "TEL;X-LABEL=FAX:1"_ba << QStringList{u"1"_s, u""_s, u""_s} << 0;
}

void TestVCard::telephonesOfEachKind()
{
    QFETCH(const QByteArray, lines);
    const auto contact = card(lines);
    QTEST((QStringList{contact.fields[ContactColumn::Telephone], contact.fields[ContactColumn::Fax],
                       contact.fields[ContactColumn::Mobile]}),
          "numbers");
    QTEST(contact.fieldsLeftOut, "leftOut");
}

void TestVCard::notesAreJoined()
{
    const auto contact = card("NOTE:one\r\nNOTE:\r\nNOTE:two\\nthree");
    QCOMPARE(contact.fields[ContactColumn::Notes], u"one\r\ntwo\nthree"_s);
    QCOMPARE(contact.fieldsLeftOut, 0);
}

void TestVCard::whatHasNoColumnIsCounted_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<int>("leftOut");
    QTest::newRow("photo") << "PHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQ"_ba << 1;
    QTest::newRow("photo with lines of its own") << "PHOTO;BASE64:/9j/\r\n4AAQSkZJ\r\n\r\n"_ba << 1;
    QTest::newRow("several") << "TITLE:Boss\r\nURL:http://example.it\r\nX-ICQ:1"_ba << 3;
    QTest::newRow("the same twice") << "URL:a\r\nURL:b"_ba << 2;
    QTest::newRow("a second name") << "FN:Ada\r\nFN:Eda"_ba << 1;
    QTest::newRow("once a card") << "TITLE:Boss\r\nEMAIL:a@b.it\r\nEMAIL:c@d.it"_ba << 1;
    QTest::newRow("empty") << "TITLE:\r\nURL: \r\nGEO:;\r\nCATEGORIES:,"_ba << 0;
    QTest::newRow("of the file") << "PRODID:x\r\nREV:1\r\nUID:2\r\nVERSION:4.0"_ba << 0;
    QTest::newRow("without a name") << ":1"_ba << 1;
    QTest::newRow("no property") << "nothing\r\n\r\nTITLE;X=1"_ba << 1;
    QTest::newRow("note without folds") << "NOTE:one\r\ntwo\r\nthree\r\nURL:a"_ba << 2;
    QTest::newRow("pager") << "TEL;TYPE=pager:1\r\nTEL:2"_ba << 1;
}

void TestVCard::whatHasNoColumnIsCounted()
{
    QFETCH(const QByteArray, lines);
    QTEST(card(lines).fieldsLeftOut, "leftOut");
}

void TestVCard::cardsEnd_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("names");
    const QStringList both{u"A"_s, u"B"_s};
    QTest::newRow("at the end") << "BEGIN:VCARD\nFN:A\nEND:VCARD\nBEGIN:VCARD\nFN:B\nEND:VCARD\n"_ba
                                << both;
    QTest::newRow("at the next") << "BEGIN:VCARD\nFN:A\nBEGIN:VCARD\nFN:B\nEND:VCARD\n"_ba << both;
    QTest::newRow("with the file") << "BEGIN:VCARD\nFN:A\nEND:VCARD\nBEGIN:VCARD\nFN:B"_ba << both;
    QTest::newRow("text outside") << "FN:X\nBEGIN:VCARD\nFN:A\nEND:VCARD\nFN:Y\n\nz\nBEGIN:"
                                     "VCARD\nFN:B\nEND:VCARD\nEND:VCARD\n"
                                     "FN:Z\n"_ba
                                  << both;
    QTest::newRow("alone") << "BEGIN:VCARD"_ba << QStringList{u""_s};
    QTest::newRow("nothing") << ""_ba << QStringList();
}

void TestVCard::cardsEnd()
{
    QFETCH(const QByteArray, content);
    QTEST(namesIn(content), "names");
}

void TestVCard::cardOfAnAgentIsPassedOver()
{
    const auto contacts = read("BEGIN:VCARD\nVERSION:2.1\nFN:A\nAGENT:\n"
                               "BEGIN:VCARD\nFN:X\nEMAIL:x@y.it\nEND:VCARD\n"
                               "EMAIL:a@b.it\nEND:VCARD\nBEGIN:VCARD\nFN:B\nEND:VCARD\n");
    QCOMPARE(contacts.size(), std::size_t{2});
    QCOMPARE(contacts[0].fields[ContactColumn::Name], u"A"_s);
    QCOMPARE(contacts[0].addresses, QStringList{u"a@b.it"_s});
    QCOMPARE(contacts[1].fields[ContactColumn::Name], u"B"_s);
}

void TestVCard::cardWithoutAddressHasAnEmptyOne()
{
    QCOMPARE(card("FN:Ada").addresses, QStringList{u""_s});
    QCOMPARE(card("FN:Ada\r\nEMAIL:").addresses, QStringList{u""_s});
}
