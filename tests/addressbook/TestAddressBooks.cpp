#include "TestAddressBooks.h"

#include "BooksRig.h"
#include "base/Language.h"
#include "support/FileSizeLimit.h"
#include "support/ItalianTexts.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Ada = BooksRig::line("Ada", "ada@mill.example");
const QByteArray Ben = BooksRig::line("Ben", "ben@mill.example");
const QByteArray Cleo = BooksRig::line("Cleo", "cleo@mill.example");

void addBen(BooksRig &rig)
{
    rig.books.cmdNew_Confirmed(BooksRig::contact(u"Ben"_s, u"ben@mill.example"_s));
}

} // namespace

void TestAddressBooks::theFirstBookIsOpenedFirst()
{
    BooksRig rig(Ada, {{u"Soci"_s, Ben}});
    QVERIFY(rig.books.contactTable().empty());
    rig.books.load();
    QCOMPARE(rig.bookNames(), (QStringList{u"Standard"_s, u"Soci"_s}));
    QCOMPARE(rig.books.selectedBook(), 0);
    QCOMPARE(rig.names(), QStringList{u"Ada"_s});
    QVERIFY(rig.books.canChangeBooks());
    QVERIFY(rig.books.canChangeContacts());
    QCOMPARE(rig.books.line(), QString());
}

void TestAddressBooks::aMissingIndexIsMadeOnFirstUse()
{
    BooksRig rig;
    QVERIFY(QFile::remove(rig.path(u"rubrica.ini"_s)));
    QVERIFY(QFile::remove(rig.path(u"rubrica.rub"_s)));
    rig.books.load();
    QCOMPARE(rig.bookNames(), QStringList{u"Standard"_s});
    QVERIFY(rig.books.canChangeContacts());
    QCOMPARE(rig.index(), "Standard\r\nrubrica.rub\r\n"_ba);
}

void TestAddressBooks::anEmptyIndexOpensNoBook()
{
    BooksRig rig;
    writeFile(rig.path(u"rubrica.ini"_s), {});
    rig.books.load();
    QCOMPARE(rig.books.selectedBook(), -1);
    QVERIFY(!rig.books.canChangeContacts());
    QVERIFY(rig.books.canChangeBooks());
    rig.books.cmdRemove_Click();
    QVERIFY(rig.prompts.takeNotices().isEmpty());
    rig.add(u"Soci"_s, rig.path(u"Soci.rub"_s));
    QCOMPARE(rig.bookNames(), QStringList{u"Soci"_s});
    QCOMPARE(rig.books.selectedBook(), 0);
    QVERIFY(rig.books.unload());
}

void TestAddressBooks::anIndexThatCannotBeReadIsSaidInTheLine()
{
    BooksRig rig;
    QVERIFY(QFile::remove(rig.path(u"rubrica.ini"_s)));
    QVERIFY(QDir(rig.folder.path()).mkdir(u"rubrica.ini"_s));
    rig.books.load();
    QCOMPARE(rig.books.line(), u"The list of the address books cannot be read: "_s +
                                   rig.path(u"rubrica.ini"_s) + u": it is a folder"_s);
    QVERIFY(!rig.books.canChangeBooks());
    QVERIFY(!rig.books.canChangeContacts());
    QVERIFY(rig.books.unload());
}

void TestAddressBooks::aBookWithoutAFileCannotBeChanged()
{
    BooksRig rig;
    writeFile(rig.path(u"rubrica.ini"_s), "Standard\r\nrubrica.rub\r\nSoci\r\n");
    rig.books.load();
    rig.books.Rubriche_Click(1);
    QCOMPARE(rig.books.selectedBook(), 1);
    QVERIFY(!rig.books.canChangeContacts());
    QVERIFY(rig.books.line().contains(u"it is a folder"_s));
    QVERIFY(rig.books.unload());
}

void TestAddressBooks::aClickWritesTheOpenBookBeforeTheOtherIsRead()
{
    // Two names for one file: what the first has written is what the second reads.
    BooksRig rig(Ada);
    writeFile(rig.path(u"rubrica.ini"_s), "Standard\r\nrubrica.rub\r\nAgain\r\n"_ba +
                                              rig.path(u"rubrica.rub"_s).toLatin1() + "\r\n");
    rig.books.load();
    addBen(rig);
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada);
    rig.books.Rubriche_Click(1);
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada + Ben);
    QCOMPARE(rig.names(), (QStringList{u"Ada"_s, u"Ben"_s}));
    QCOMPARE(rig.books.selectedBook(), 1);
}

void TestAddressBooks::aClickOnTheOpenBookSavesAndReadsItAgain()
{
    BooksRig rig(Ada);
    rig.books.load();
    Contact contact = BooksRig::contact(u"Ben"_s, u"ben@mill.example#old"_s);
    rig.books.cmdNew_Confirmed(contact);
    rig.books.Rubriche_Click(0);
    QCOMPARE(rig.books.contactTable().back()[ContactColumn::Email], u"ben@mill.example"_s);
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada + "Ben;ben@mill.example#old;Ben;;;;;;;;;;;\r\n"_ba);
}

void TestAddressBooks::aBookNotReadToItsEndSaysSoAndIsLeftAlone()
{
    BooksRig rig(Ada, {{u"Soci"_s, Ben + "\r\n" + Cleo}});
    rig.books.load();
    rig.books.Rubriche_Click(1);
    QCOMPARE(rig.names(), QStringList{u"Ben"_s});
    QVERIFY(!rig.books.canChangeContacts());
    QCOMPARE(rig.books.line(), u"The book could not be read to its end and cannot be changed: "_s +
                                   rig.path(u"Soci.rub"_s) + u": line 2 has no \";\""_s);
    rig.books.Rubriche_Click(0);
    QCOMPARE(rig.books.line(), QString());
    QVERIFY(rig.books.canChangeContacts());
    QCOMPARE(rig.content(u"Soci.rub"_s), Ben + "\r\n" + Cleo);
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestAddressBooks::changesAreKeptInMemoryUntilTheBookIsLeft()
{
    BooksRig rig(Ada);
    rig.books.load();
    addBen(rig);
    rig.books.cmdEdit_Confirmed(1, BooksRig::contact(u"Eve"_s, u"eve@mill.example"_s));
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada);
    QVERIFY(rig.books.unload());
    QCOMPARE(rig.content(u"rubrica.rub"_s), BooksRig::line("Eve", "eve@mill.example") + Ben);
}

void TestAddressBooks::closingWithoutChangesWritesWhatWasRead()
{
    BooksRig rig("Ada;ada@mill.example\n"_ba);
    rig.books.load();
    QVERIFY(rig.books.unload());
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada);
}

void TestAddressBooks::whatAnotherProgramChangedIsSaidAndShown()
{
    BooksRig rig(Ada);
    rig.books.load();
    addBen(rig);
    writeFile(rig.path(u"rubrica.rub"_s), Cleo);
    QVERIFY(!rig.books.unload());
    QCOMPARE(rig.books.line(),
             u"This book was changed by another program meanwhile, or cannot be read any more. "
             "Your contacts were saved as "_s +
                 rig.path(u"rubrica (2).rub"_s) + u'.');
    QVERIFY(!rig.books.isUnsaved());
    QCOMPARE(rig.content(u"rubrica.rub"_s), Cleo);
    QCOMPARE(rig.content(u"rubrica (2).rub"_s), Ada + Ben);
    QCOMPARE(rig.names(), QStringList{u"Cleo"_s});
    QVERIFY(rig.books.unload());
    QCOMPARE(rig.content(u"rubrica.rub"_s), Cleo);
}

void TestAddressBooks::aBookThatCannotBeSavedIsNotLeft()
{
    BooksRig rig(Ada, {{u"Soci"_s, Cleo}});
    rig.books.load();
    addBen(rig);
    QSignalSpy booksChanged(&rig.books, &AddressBooks::booksChanged);
    const QStringList both{u"Ada"_s, u"Ben"_s};
    {
        const FileSizeLimit full(20);
        for (int tries = 0; tries < 3; ++tries) {
            QVERIFY(!rig.books.unload());
            rig.books.Rubriche_Click(1);
            rig.books.Rubriche_Click(0);
            rig.add(u"New"_s, rig.path(u"New.rub"_s));
            QCOMPARE(rig.books.selectedBook(), 0);
            QCOMPARE(rig.names(), both);
            QVERIFY(rig.books.isUnsaved());
            QVERIFY(rig.books.line().startsWith(u"The contacts could not be saved: "_s +
                                                rig.path(u"rubrica.rub"_s) + u": "_s));
        }
        // The list is told which book is open, after each click.
        QCOMPARE(booksChanged.count(), 6);
    }
    QVERIFY(!QFile::exists(rig.path(u"New.rub"_s)));
    // There is room again.
    rig.books.Rubriche_Click(1);
    QCOMPARE(rig.books.selectedBook(), 1);
    QVERIFY(!rig.books.isUnsaved());
    QCOMPARE(rig.books.line(), QString());
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada + Ben);
    QCOMPARE(rig.names(), QStringList{u"Cleo"_s});
}

void TestAddressBooks::whatCannotBeSavedCanBeGivenUp()
{
    BooksRig rig(Ada);
    rig.books.load();
    addBen(rig);
    rig.books.cmdDiscard_Click();
    QCOMPARE(rig.names(), (QStringList{u"Ada"_s, u"Ben"_s}));
    const FileSizeLimit full(20);
    QVERIFY(!rig.books.unload());
    rig.books.cmdDiscard_Click();
    QVERIFY(!rig.books.isUnsaved());
    QCOMPARE(rig.books.line(), QString());
    QCOMPARE(rig.names(), QStringList{u"Ada"_s});
    QVERIFY(rig.books.unload());
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada);
}

void TestAddressBooks::aBookThatCannotBeReadAnyMoreIsSavedBeside()
{
    BooksRig rig(Ada);
    rig.books.load();
    addBen(rig);
    QVERIFY(QFile::remove(rig.path(u"rubrica.rub"_s)));
    QVERIFY(QDir(rig.folder.path()).mkdir(u"rubrica.rub"_s));
    QVERIFY(!rig.books.unload());
    QVERIFY(rig.books.line().contains(rig.path(u"rubrica (2).rub"_s)));
    QCOMPARE(rig.content(u"rubrica (2).rub"_s), Ada + Ben);
    QVERIFY(!rig.books.canChangeContacts());
    QVERIFY(rig.books.unload());
}

void TestAddressBooks::theEndOfTheSessionSavesWhereItCan()
{
    BooksRig rig;
    const QTemporaryDir drive;
    writeFile(drive.filePath(u"soci.rub"_s), Ada);
    writeFile(rig.path(u"rubrica.ini"_s),
              "Soci\r\n"_ba + QFile::encodeName(drive.filePath(u"soci.rub"_s)) + "\r\n");
    rig.books.load();
    addBen(rig);
    rig.books.endSession();
    QCOMPARE(readFile(drive.filePath(u"soci.rub"_s)), Ada + Ben);
    addBen(rig);
    QVERIFY(QDir(drive.path()).removeRecursively());
    rig.books.endSession();
    QCOMPARE(rig.content(u"soci.rub"_s), Ada + Ben + Ben);
}

void TestAddressBooks::aNewBookIsAddedSelectedAndOpened()
{
    BooksRig rig(Ada);
    rig.books.load();
    const QString file = rig.path(u"Soci.rub"_s);
    rig.add(u"Soci"_s, file);
    QCOMPARE(rig.bookNames(), (QStringList{u"Standard"_s, u"Soci"_s}));
    QCOMPARE(rig.books.selectedBook(), 1);
    QVERIFY(rig.books.contactTable().empty());
    QCOMPARE(rig.content(u"Soci.rub"_s), QByteArray());
    QCOMPARE(rig.index(),
             "Standard\r\nrubrica.rub\r\nSoci\r\n"_ba + QFile::encodeName(file) + "\r\n");
    addBen(rig);
    QVERIFY(rig.books.unload());
    QCOMPARE(rig.content(u"Soci.rub"_s), Ben);
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada);
}

void TestAddressBooks::theProposedNameIsFree()
{
    BooksRig rig;
    writeFile(rig.path(u"Soci 2026.rub"_s), {});
    rig.books.load();
    rig.add(u"Soci: 2026?"_s, u""_s);
    QCOMPARE(rig.prompts.fileDialogs.size(), 1);
    const FileDialog &dialog = rig.prompts.fileDialogs.front();
    QCOMPARE(dialog.kind, FileDialog::Kind::Save);
    QCOMPARE(dialog.initialName, u"Soci 2026 (2).rub"_s);
    QCOMPARE(dialog.initialFolder, rig.folder.path());
    QCOMPARE(dialog.filter, u"Address Book (*.rub)|*.rub"_s);
    QCOMPARE(dialog.defaultExtension, u"rub"_s);
    QVERIFY(!dialog.asksBeforeOverwriting);
}

void TestAddressBooks::aNameThatIsTakenIsRefused()
{
    BooksRig rig({}, {{u"Soci"_s, {}}});
    rig.books.load();
    rig.add(u"Soci"_s, {});
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().icon, Icon::Critical);
    QCOMPARE(notices.front().text, u"The specified name is already in use."_s);
    QCOMPARE(rig.bookNames().size(), 2);
}

void TestAddressBooks::aNameThatDiffersOnlyInLetterCaseIsAccepted()
{
    BooksRig rig({}, {{u"Soci"_s, {}}});
    rig.books.load();
    rig.add(u"soci"_s, rig.path(u"other.rub"_s));
    QCOMPARE(rig.bookNames(), (QStringList{u"Standard"_s, u"Soci"_s, u"soci"_s}));
}

void TestAddressBooks::aFileThatIsTakenIsRefused()
{
    BooksRig rig;
    const QString file = rig.path(u"Soci.rub"_s);
    rig.books.load();
    rig.add(u"Soci"_s, file);
    const QByteArray before = rig.index();
    rig.add(u"Others"_s, file);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().icon, Icon::Critical);
    QCOMPARE(notices.front().text, u"The specified file is already in use."_s);
    QCOMPARE(rig.index(), before);
}

void TestAddressBooks::anExistingFileBecomesTheNewBook()
{
    BooksRig rig;
    writeFile(rig.path(u"members.txt"_s), "Ada;ada@mill.example\nBen;ben@mill.example\n");
    rig.books.load();
    rig.add(u"Members"_s, rig.path(u"members.txt"_s));
    QCOMPARE(rig.names(), (QStringList{u"Ada"_s, u"Ben"_s}));
    QCOMPARE(rig.content(u"members.txt"_s), "Ada;ada@mill.example\nBen;ben@mill.example\n"_ba);
}

void TestAddressBooks::noNameAndNoFileEndTheCommand()
{
    BooksRig rig;
    rig.books.load();
    const QByteArray before = rig.index();
    rig.add({}, {});
    rig.add(u"Soci"_s, u""_s);
    QCOMPARE(rig.index(), before);
    QCOMPARE(rig.books.selectedBook(), 0);
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestAddressBooks::theOpenBookIsSavedBeforeANewOneIsOpened()
{
    BooksRig rig(Ada);
    rig.books.load();
    addBen(rig);
    rig.add(u"Soci"_s, rig.path(u"Soci.rub"_s));
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada + Ben);
    QVERIFY(rig.books.unload());
    QCOMPARE(rig.content(u"rubrica.rub"_s), Ada + Ben);
    QCOMPARE(rig.content(u"Soci.rub"_s), QByteArray());
}

void TestAddressBooks::aNewBookThatCannotBeMadeChangesNothing()
{
    BooksRig rig(Ada);
    rig.books.load();
    const QByteArray before = rig.index();
    const QString file = rig.path(u"nowhere/Soci.rub"_s);
    rig.add(u"Soci"_s, file);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().icon, Icon::Critical);
    QCOMPARE(notices.front().text, u"The address book could not be added."_s);
    QVERIFY(notices.front().detail.startsWith(file + u": "_s));
    QCOMPARE(rig.index(), before);
    QCOMPARE(rig.books.selectedBook(), 0);
    QCOMPARE(rig.names(), QStringList{u"Ada"_s});
}

void TestAddressBooks::aBookThatFindsNoRoomInTheListIsNotAdded()
{
    BooksRig rig;
    rig.books.load();
    const QByteArray before = rig.index();
    const QString file = rig.path(u"Soci.rub"_s);
    const QByteArray wanted = before + "Soci\r\n" + file.toLatin1() + "\r\n";
    forEachFullDisk(wanted.size(), [&](rlim_t room) {
        {
            const FileSizeLimit full(room);
            rig.add(u"Soci"_s, file);
        }
        const QList<Notice> notices = rig.prompts.takeNotices();
        QCOMPARE(notices.size(), 1);
        QCOMPARE(notices.front().text, u"The address book could not be added."_s);
        QVERIFY(notices.front().detail.startsWith(rig.path(u"rubrica.ini"_s)));
        QCOMPARE(rig.index(), before);
        QCOMPARE(rig.bookNames(), QStringList{u"Standard"_s});
    });
    rig.add(u"Soci"_s, file);
    QCOMPARE(rig.index(), wanted);
}

void TestAddressBooks::aListThatCannotBeSavedStays()
{
    BooksRig rig(Ada, {{u"Soci"_s, {}}});
    rig.books.load();
    const QByteArray before = rig.index();
    const QByteArray wanted = "Standard\r\nrubrica.rub\r\n";
    const auto remove = [&rig] {
        rig.books.Rubriche_Click(1);
        rig.prompts.expectAnswer(Topic::DeleteBook, Answer::Ok);
        rig.books.cmdRemove_Click();
        rig.prompts.answerAll();
    };
    forEachFullDisk(wanted.size(), [&](rlim_t room) {
        {
            const FileSizeLimit full(room);
            remove();
        }
        const QList<Notice> notices = rig.prompts.takeNotices();
        QCOMPARE(notices.size(), 1);
        QCOMPARE(notices.front().icon, Icon::Critical);
        QCOMPARE(notices.front().text, u"The address book could not be removed."_s);
        QVERIFY(notices.front().detail.startsWith(rig.path(u"rubrica.ini"_s)));
        QCOMPARE(rig.index(), before);
        QCOMPARE(rig.bookNames(), (QStringList{u"Standard"_s, u"Soci"_s}));
    });
    remove();
    QCOMPARE(rig.index(), wanted);
}

void TestAddressBooks::whatAnotherProgramAddedIsTakenToo()
{
    BooksRig rig;
    rig.books.load();
    writeFile(rig.path(u"rubrica.ini"_s), rig.index() + "Soci\r\n/a/soci.rub\r\n");
    rig.add(u"Soci"_s, {});
    rig.add(u"Others"_s, u"/a/soci.rub"_s);
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             (QStringList{u"The specified name is already in use."_s,
                          u"The specified file is already in use."_s}));
}

void TestAddressBooks::theStandardBookIsNotDeleted()
{
    BooksRig rig({}, {{u"Soci"_s, {}}});
    rig.books.load();
    rig.books.cmdRemove_Click();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().icon, Icon::Critical);
    QCOMPARE(notices.front().text, u"The standard address book can't be deleted."_s);
    QCOMPARE(rig.bookNames().size(), 2);
}

void TestAddressBooks::theOnlyBookIsNotDeletedEither()
{
    BooksRig rig;
    rig.books.load();
    rig.books.cmdRemove_Click();
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{u"The standard address book can't be deleted."_s});
    QCOMPARE(rig.bookNames(), QStringList{u"Standard"_s});
}

void TestAddressBooks::aDeletedBookLeavesItsFile()
{
    BooksRig rig(Ada, {{u"Soci"_s, Cleo}, {u"Others"_s, {}}});
    rig.books.load();
    rig.books.Rubriche_Click(1);
    addBen(rig);
    rig.prompts.expectAnswer(Topic::DeleteBook, Answer::Ok);
    rig.books.cmdRemove_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.questions.size(), 1);
    QCOMPARE(rig.prompts.questions.front().icon, Icon::Exclamation);
    QVERIFY(rig.prompts.questions.front().buttons == Buttons::OkCancel);
    QCOMPARE(rig.bookNames(), (QStringList{u"Standard"_s, u"Others"_s}));
    QCOMPARE(rig.index(), "Standard\r\nrubrica.rub\r\nOthers\r\nOthers.rub\r\n"_ba);
    QCOMPARE(rig.books.selectedBook(), 0);
    QCOMPARE(rig.names(), QStringList{u"Ada"_s});
    // It was written back before it was left.
    QCOMPARE(rig.content(u"Soci.rub"_s), Cleo + Ben);
}

void TestAddressBooks::deletingABookCanBeCancelled()
{
    BooksRig rig(Ada, {{u"Soci"_s, Cleo}});
    rig.books.load();
    rig.books.Rubriche_Click(1);
    rig.prompts.expectAnswer(Topic::DeleteBook, Answer::Cancel);
    rig.books.cmdRemove_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.bookNames().size(), 2);
    QCOMPARE(rig.books.selectedBook(), 1);
}

void TestAddressBooks::aBookOfAnotherProgramSurvivesADeletion()
{
    BooksRig rig(Ada, {{u"Soci"_s, Cleo}});
    rig.books.load();
    rig.books.Rubriche_Click(1);
    writeFile(rig.path(u"rubrica.ini"_s), rig.index() + "New\r\nnew.rub\r\n");
    rig.prompts.expectAnswer(Topic::DeleteBook, Answer::Ok);
    rig.books.cmdRemove_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.index(), "Standard\r\nrubrica.rub\r\nNew\r\nnew.rub\r\n"_ba);
    QCOMPARE(rig.bookNames(), (QStringList{u"Standard"_s, u"New"_s}));
}

void TestAddressBooks::textsOfTheMessages_data()
{
    QTest::addColumn<Language>("language");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("English")
        << Language::English
        << QStringList{u"Insert the name for the new address book:"_s,
                       u"The specified name is already in use."_s,
                       u"The standard address book can't be deleted."_s,
                       u"Are you sure to delete the selected address book? All the contacts will "
                       "be deleted! Do you want to continue?"_s,
                       u"Are you sure to delete 2 selected contact(s)?"_s};
    QTest::newRow("Italian")
        << Language::Italian
        << QStringList{u"Inserire il nome della nuova rubrica:"_s,
                       u"Il nome inserito è già in uso."_s,
                       u"La rubrica standard non può essere eliminata."_s,
                       u"La rubrica selezionata insieme ai contatti in essa contenuti verrà "
                       "eliminata. Procedere?"_s,
                       u"Sei sicuro di eliminare i contatti selezionati?"_s};
}

void TestAddressBooks::textsOfTheMessages()
{
    QFETCH(const Language, language);
    QFETCH(const QStringList, texts);
    std::optional<ItalianTexts> italian;
    if (language == Language::Italian)
        italian.emplace();
    BooksRig rig(Ada + Ben, {{u"Soci"_s, Cleo}});
    rig.books.load();
    rig.prompts.expectText(texts[0], u"Soci"_s);
    rig.books.cmdAdd_Click();
    rig.prompts.answerAll();
    rig.books.cmdRemove_Click();
    QCOMPARE(rig.prompts.takeNoticeTexts(), (QStringList{texts[1], texts[2]}));
    rig.prompts.expectAnswer(Topic::DeleteContacts, Answer::Cancel);
    rig.books.cmdDelete_Click({1, 2});
    rig.prompts.answerAll();
    rig.books.Rubriche_Click(1);
    rig.prompts.expectAnswer(Topic::DeleteBook, Answer::Cancel);
    rig.books.cmdRemove_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.questions[1].text, texts[3]);
    QCOMPARE(rig.prompts.questions[0].text, texts[4]);
}
