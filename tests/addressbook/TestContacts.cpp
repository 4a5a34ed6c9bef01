#include "TestContacts.h"

#include "BooksRig.h"

using namespace Qt::StringLiterals;

namespace {

const QString ImportTitle = u"Import contacts"_s;

BooksRig &loaded(BooksRig &rig)
{
    rig.books.load();
    return rig;
}

void import(BooksRig &rig, const QString &file)
{
    rig.prompts.expectFile(ImportTitle, file);
    rig.books.mnuImport_Click();
    rig.prompts.answerAll();
}

} // namespace

void TestContacts::aNewContactStandsAtTheEndWithItsDisplayName()
{
    BooksRig rig(BooksRig::line("Ada", "ada@mill.example"));
    loaded(rig);
    const QSignalSpy added(&rig.books, &AddressBooks::contactKept);
    Contact contact = BooksRig::contact(u"Ben"_s, u"ben@mill.example"_s);
    contact[ContactColumn::Company] = u"Mill"_s;
    contact[ContactColumn::Notes] = u"one\r\ntwo"_s;
    rig.books.cmdNew_Confirmed(contact);
    QCOMPARE(rig.names(), (QStringList{u"Ada"_s, u"Ben - Mill"_s}));
    QCOMPARE(added.count(), 1);
    QCOMPARE(added.front().front().toInt(), 2);
    QVERIFY(rig.books.unload());
    QCOMPARE(rig.content(u"rubrica.rub"_s),
             BooksRig::line("Ada", "ada@mill.example") +
                 "Ben - Mill;ben@mill.example;Ben;Mill;;;;;;;;;one\\n\\rtwo;\r\n");
}

void TestContacts::anEditedContactKeepsItsRow()
{
    BooksRig rig("A;a@b.example\r\nB;b@b.example\r\nC;c@b.example\r\n");
    loaded(rig);
    Contact contact = BooksRig::contact({}, u"new@b.example"_s);
    contact[ContactColumn::Company] = u"Mill"_s;
    rig.books.cmdEdit_Confirmed(2, contact);
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"Mill"_s, u"C"_s}));
    QCOMPARE(rig.books.contactTable()[1][ContactColumn::Email], u"new@b.example"_s);
}

void TestContacts::threeDeletedOfFiveLeaveTwo()
{
    BooksRig rig("A;a@b.example\r\nB;b@b.example\r\nC;c@b.example\r\nD;d@b.example\r\n"
                 "E;e@b.example\r\n");
    loaded(rig);
    rig.prompts.expectAnswer(Topic::DeleteContacts, Answer::Ok);
    rig.books.cmdDelete_Click({1, 3, 4});
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.questions.front().text,
             u"Are you sure to delete 3 selected contact(s)?"_s);
    QCOMPARE(rig.prompts.questions.front().icon, Icon::Exclamation);
    QVERIFY(rig.prompts.questions.front().buttons == Buttons::OkCancel);
    QCOMPARE(rig.names(), (QStringList{u"B"_s, u"E"_s}));
}

void TestContacts::deletingContactsCanBeCancelled()
{
    BooksRig rig("A;a@b.example\r\n");
    loaded(rig);
    rig.prompts.expectAnswer(Topic::DeleteContacts, Answer::Cancel);
    rig.books.cmdDelete_Click({1});
    rig.prompts.answerAll();
    QCOMPARE(rig.names(), QStringList{u"A"_s});
}

void TestContacts::deletingNothingAsksNothing()
{
    BooksRig rig("A;a@b.example\r\n");
    loaded(rig).books.cmdDelete_Click({});
    QCOMPARE(rig.prompts.openBoxes(), 0);
    QCOMPARE(rig.names(), QStringList{u"A"_s});
}

void TestContacts::contactsOfAnotherProgramAreImported()
{
    BooksRig rig("A;a@b.example\r\n");
    loaded(rig);
    writeFile(rig.path(u"phone.vcf"_s),
              "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Zo\xC3\xAB Blake\r\nEMAIL:zoe@mill.example\r\n"
              "END:VCARD\r\n");
    import(rig, rig.path(u"phone.vcf"_s));
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"Zoë Blake"_s}));
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{u"Contacts imported: 1"_s});
    writeFile(rig.path(u"list.csv"_s), "Ben;ben@mill.example\r\nCleo;cleo@mill.example\r\n");
    import(rig, rig.path(u"list.csv"_s));
    QCOMPARE(rig.names().sliced(2), (QStringList{u"Ben"_s, u"Cleo"_s}));
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{u"Contacts imported: 2"_s});
    QVERIFY(rig.books.unload());
    QCOMPARE(rig.content(u"rubrica.rub"_s).count('\n'), 4);
}

void TestContacts::whatCouldNotBeImportedIsSaid()
{
    BooksRig rig;
    loaded(rig);
    writeFile(rig.path(u"phone.vcf"_s),
              "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ada\r\nEMAIL:ada@mill.example\r\n"
              "BDAY:1990-01-01\r\nEND:VCARD\r\n"
              "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Nobody\r\nTEL:123\r\nEND:VCARD\r\n");
    import(rig, rig.path(u"phone.vcf"_s));
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{u"Contacts imported: 1\n"
                         "Fields left out because the address book has no place for them: 1\n"
                         "These contacts have no valid e-mail address and were left out:\n"
                         "Nobody - "_s});
}

void TestContacts::aFileThatCannotBeImportedIsSaid()
{
    BooksRig rig;
    loaded(rig);
    import(rig, rig.folder.path());
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().icon, Icon::Critical);
    QCOMPARE(notices.front().text, u"The contacts cannot be read."_s);
    QCOMPARE(notices.front().detail, rig.folder.path() + u": it is a folder"_s);
}

void TestContacts::noFileImportsNothing()
{
    BooksRig rig;
    loaded(rig);
    import(rig, {});
    QVERIFY(rig.prompts.takeNotices().isEmpty());
    QVERIFY(rig.books.contactTable().empty());
}
