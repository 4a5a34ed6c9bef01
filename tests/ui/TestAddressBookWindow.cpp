#include "TestAddressBookWindow.h"

#include "AddressBookDriver.h"
#include "Languages.h"
#include "support/FileSizeLimit.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSplitter>

using namespace Qt::StringLiterals;

namespace {

// Neither names nor addresses are in order, and not in the same.
const QByteArray Five =
    "Ben;ben@mill.example\r\nAda;v.ada@mill.example\r\nCleo;cleo@mill.example\r\n"
    "Dan;dan@mill.example\r\nEve;a.eve@mill.example\r\n";

/// The window with a book of five, and one of one.
struct FiveRig : AddressBookRig
{
    explicit FiveRig(Language language = Language::English) : AddressBookRig(language)
    {
        writeIndex({"Standard", "Soci"});
        write("standard.rub", Five);
        write("soci.rub", "Zoe;zoe@mill.example\r\n");
        openBook();
    }
    void clickHeading(int column) const
    {
        QHeaderView &header = *contactList().header();
        const QPoint place(header.sectionViewportPosition(column) + 5, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    }
    void find(const QString &words) const
    {
        auto &box = part<QLineEdit>(book(), "txtFind");
        box.setFocus();
        QTest::keyClicks(&box, words);
    }
    [[nodiscard]] QString selectedNames() const
    {
        QStringList names;
        for (const QModelIndex &index : contactList().selectionModel()->selectedRows())
            names.append(index.data().toString());
        return names.join(u' ');
    }
};

} // namespace

void TestAddressBookWindow::captionsOfTheControls_data()
{
    addLanguages();
}

void TestAddressBookWindow::captionsOfTheControls()
{
    QFETCH(const Language, language);
    const bool italian = language == Language::Italian;
    AddressBookRig rig(language);
    rig.openBook();
    const auto caption = [&rig](const char *name) {
        return rig.book()->findChild<QWidget *>(QLatin1String(name))->property("text").toString();
    };
    QCOMPARE(rig.book()->windowTitle(), italian ? u"Rubrica"_s : u"Address Book"_s);
    QCOMPARE(caption("lblRubriche"), italian ? u"Rubriche:"_s : u"Address Books:"_s);
    QCOMPARE(caption("lblElenco"), italian ? u"Contatti:"_s : u"Contacts:"_s);
    QCOMPARE(caption("cmdAdd"), italian ? u"&Aggiungi"_s : u"&Add"_s);
    QCOMPARE(caption("cmdRemove"), italian ? u"&Rimuovi"_s : u"&Remove"_s);
    QCOMPARE(caption("cmdNew"), italian ? u"&Nuovo"_s : u"&New"_s);
    QCOMPARE(caption("cmdEdit"), italian ? u"&Modifica"_s : u"&Edit"_s);
    QCOMPARE(caption("cmdDelete"), italian ? u"&Elimina"_s : u"&Delete"_s);
    QCOMPARE(caption("cmdClose"), italian ? u"&Chiudi"_s : u"&Close"_s);
    const auto heading = [](const QAbstractItemModel *model, int column) {
        return model->headerData(column, Qt::Horizontal).toString();
    };
    const QString name = italian ? u"Nome"_s : u"Name"_s;
    QCOMPARE(heading(rig.bookList().model(), 0), name);
    QCOMPARE(heading(rig.contactList().model(), 0), name);
    QCOMPARE(heading(rig.contactList().model(), 1),
             italian ? u"Indirizzo E-Mail"_s : u"E-Mail Address"_s);
    QCOMPARE(rig.bookList().topLevelItem(0)->text(0), italian ? u"Principale"_s : u"Standard"_s);
}

void TestAddressBookWindow::theFirstBookIsOpen()
{
    const FiveRig rig;
    QCOMPARE(rig.bookList().topLevelItemCount(), 2);
    QCOMPARE(rig.bookList().currentItem()->text(0), u"Standard"_s);
    QCOMPARE(rig.shown(), (QStringList{u"Ben"_s, u"Ada"_s, u"Cleo"_s, u"Dan"_s, u"Eve"_s}));
    QCOMPARE(rig.shown(1).front(), u"ben@mill.example"_s);
    QCOMPARE(rig.keys(), (QStringList{u"i1"_s, u"i2"_s, u"i3"_s, u"i4"_s, u"i5"_s}));
    QCOMPARE(rig.count(), u"Shown: 5 of 5"_s);
    QVERIFY(rig.contactList().hasFocus());
}

void TestAddressBookWindow::aClickOpensABook()
{
    const FiveRig rig;
    rig.clickBook(1);
    QCOMPARE(rig.shown(), QStringList{u"Zoe"_s});
    QCOMPARE(rig.bookList().currentItem()->text(0), u"Soci"_s);
    rig.clickBook(0);
    QCOMPARE(rig.shown().size(), 5);
}

void TestAddressBookWindow::keysOpenABook()
{
    const FiveRig rig;
    rig.bookList().setFocus();
    QTest::keyClick(&rig.bookList(), Qt::Key_Down);
    QTRY_COMPARE(rig.shown(), QStringList{u"Zoe"_s});
    // A click on it then is one on the open book.
    rig.write("soci.rub", "Gus;gus@mill.example\r\n");
    rig.clickBook(1);
    QCOMPARE(rig.shown(), QStringList{u"Gus"_s});
}

void TestAddressBookWindow::aClickOnTheOpenBookReadsItAgain()
{
    const FiveRig rig;
    rig.write("standard.rub", "Fay;fay@mill.example\r\n");
    rig.clickBook(0);
    QCOMPARE(rig.shown(), QStringList{u"Fay"_s});
    rig.write("standard.rub", "Gus;gus@mill.example\r\n");
    rig.clickBook(0);
    QCOMPARE(rig.shown(), QStringList{u"Gus"_s});
}

void TestAddressBookWindow::aBookThatCannotBeSavedStaysSelected()
{
    const FiveRig rig;
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    const FileSizeLimit full(20);
    rig.clickBook(1);
    QCOMPARE(rig.bookList().currentItem()->text(0), u"Standard"_s);
    QVERIFY(rig.bookList().topLevelItem(0)->isSelected());
    QVERIFY(!rig.bookList().topLevelItem(1)->isSelected());
    QVERIFY(rig.line().startsWith(u"The contacts could not be saved: "_s));
    QCOMPARE(rig.shown().size(), 6);
    // However often it is tried, and with whatever key is held down.
    rig.clickBook(1);
    rig.clickBook(0);
    rig.bookList().setFocus();
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&rig.bookList(), Qt::Key_Down);
        QCoreApplication::processEvents();
        QTest::keyClick(rig.book(), Qt::Key_Escape);
        rig.press(rig.book(), "cmdClose");
    }
    QVERIFY(rig.book());
    QCOMPARE(rig.shown().size(), 6);
}

void TestAddressBookWindow::whatCannotBeSavedCanBeGivenUp()
{
    const FiveRig rig;
    const auto &discard = rig.part<QPushButton>(rig.book(), "cmdDiscard");
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    QVERIFY(!discard.isVisible());
    {
        const FileSizeLimit full(20);
        rig.press(rig.book(), "cmdClose");
        QVERIFY(discard.isVisible());
        rig.press(rig.book(), "cmdDiscard");
        QVERIFY(!discard.isVisible());
        QCOMPARE(rig.line(), QString());
        QCOMPARE(rig.shown().size(), 5);
        rig.press(rig.book(), "cmdClose");
        QVERIFY(!rig.book());
    }
    QCOMPARE(rig.content("standard.rub"), Five);
}

void TestAddressBookWindow::aSecondWindowIsNotOpened()
{
    FiveRig rig;
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    rig.get<QAction>("mnuRubrica").trigger();
    QCOMPARE(rig.window->findChildren<frmRubrica *>().size(), 1);
    rig.window->endSession();
    QVERIFY(rig.content("standard.rub").contains("Fay"));
}

void TestAddressBookWindow::aClickAfterAnotherButtonReadsTheBookAgain()
{
    const FiveRig rig;
    const QRect item = rig.bookList().visualItemRect(rig.bookList().topLevelItem(1));
    QTest::mousePress(rig.bookList().viewport(), Qt::RightButton, {}, item.center());
    QTest::mouseRelease(rig.bookList().viewport(), Qt::RightButton, {}, item.center());
    QTRY_COMPARE(rig.shown(), QStringList{u"Zoe"_s});
    rig.write("soci.rub", "Gus;gus@mill.example\r\n");
    rig.clickBook(1);
    QCOMPARE(rig.shown(), QStringList{u"Gus"_s});
}

void TestAddressBookWindow::aNewContactIsSelectedAndInSight()
{
    const FiveRig rig;
    rig.press(rig.book(), "cmdNew");
    QVERIFY(rig.editor());
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    QVERIFY(!rig.editor());
    QCOMPARE(rig.shown().back(), u"Fay"_s);
    QCOMPARE(rig.keys().back(), u"i6"_s);
    QCOMPARE(rig.selectedNames(), u"Fay"_s);
}

void TestAddressBookWindow::aNewContactThatWasNotLookedForEndsTheSearch()
{
    const FiveRig rig;
    rig.find(u"ada"_s);
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Ada Two"_s, u"two@mill.example"_s);
    QCOMPARE(rig.shown(), (QStringList{u"Ada"_s, u"Ada Two"_s}));
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    QCOMPARE(rig.shown().size(), 7);
    QCOMPARE(rig.part<QLineEdit>(rig.book(), "txtFind").text(), QString());
    QCOMPARE(rig.selectedNames(), u"Fay"_s);
}

void TestAddressBookWindow::anEditedContactIsTheRightOneWhenSorted()
{
    const FiveRig rig;
    rig.clickHeading(0);
    rig.clickHeading(0);
    QCOMPARE(rig.shown().front(), u"Eve"_s);
    rig.clickContact(1);
    rig.press(rig.book(), "cmdEdit");
    QCOMPARE(rig.part<QLineEdit>(rig.editor(), "txtName").text(), u"Dan"_s);
    rig.enter(u"Abe"_s, u"abe@mill.example"_s);
    QCOMPARE(rig.shown(), (QStringList{u"Eve"_s, u"Cleo"_s, u"Ben"_s, u"Ada"_s, u"Abe"_s}));
    QCOMPARE(rig.keys().back(), u"i4"_s);
    QCOMPARE(rig.selectedNames(), u"Abe"_s);
    rig.press(rig.book(), "cmdClose");
    QVERIFY(
        rig.content("standard.rub").contains("\r\nAbe;abe@mill.example;Abe;;;;;;;;;;;\r\nEve;"));
    QVERIFY(!rig.content("standard.rub").contains("Dan"));
}

void TestAddressBookWindow::anEditedContactIsTheRightOneWhenFound()
{
    const FiveRig rig;
    rig.find(u"dan"_s);
    QCOMPARE(rig.shown(), QStringList{u"Dan"_s});
    rig.clickContact(0);
    rig.press(rig.book(), "cmdEdit");
    rig.enter(u"Daniel"_s, u"daniel@mill.example"_s);
    QCOMPARE(rig.shown(), QStringList{u"Daniel"_s});
    rig.press(rig.book(), "cmdClose");
    QVERIFY(rig.content("standard.rub").contains("\r\nDaniel;daniel@mill.example;Daniel;"));
    QCOMPARE(rig.content("standard.rub").count('\n'), 5);
}

void TestAddressBookWindow::anEditedContactThatIsNotLookedForAnyMoreStaysInSight()
{
    const FiveRig rig;
    rig.find(u"dan"_s);
    rig.clickContact(0);
    rig.press(rig.book(), "cmdEdit");
    rig.enter(u"Gus"_s, u"gus@mill.example"_s);
    QCOMPARE(rig.shown().size(), 5);
    QCOMPARE(rig.selectedNames(), u"Gus"_s);
}

void TestAddressBookWindow::theSelectedContactIsEditedWhereverTheKeysAre()
{
    const FiveRig rig;
    rig.clickContact(0);
    rig.clickContact(2, Qt::ControlModifier);
    rig.clickContact(2, Qt::ControlModifier);
    QCOMPARE(rig.selectedNames(), u"Ben"_s);
    rig.press(rig.book(), "cmdEdit");
    QVERIFY(rig.editor());
    QCOMPARE(rig.part<QLineEdit>(rig.editor(), "txtName").text(), u"Ben"_s);
}

void TestAddressBookWindow::aDoubleClickEdits()
{
    const FiveRig rig;
    rig.doubleClickContact(2);
    QVERIFY(rig.editor());
    QCOMPARE(rig.editor()->windowTitle(), u"Edit Contact"_s);
    QCOMPARE(rig.part<QLineEdit>(rig.editor(), "txtEmail").text(), u"cleo@mill.example"_s);
    rig.press(rig.editor(), "cmdCancel");
    QCOMPARE(rig.shown().size(), 5);
}

void TestAddressBookWindow::nothingSelectedEditsNothing()
{
    const FiveRig rig;
    rig.press(rig.book(), "cmdEdit");
    rig.press(rig.book(), "cmdDelete");
    QVERIFY(!rig.editor());
    QCOMPARE(rig.core->prompts.openBoxes(), 0);
}

void TestAddressBookWindow::deletingThreeOfFiveLeavesTwoKeyedAnew()
{
    FiveRig rig;
    rig.clickContact(0);
    rig.clickContact(2, Qt::ControlModifier);
    rig.clickContact(3, Qt::ControlModifier);
    rig.core->prompts.expectAnswer(Topic::DeleteContacts, Answer::Ok);
    rig.press(rig.book(), "cmdDelete");
    rig.core->prompts.answerAll();
    QCOMPARE(rig.core->prompts.questions.front().text,
             u"Are you sure to delete 3 selected contact(s)?"_s);
    QCOMPARE(rig.shown(), (QStringList{u"Ada"_s, u"Eve"_s}));
    QCOMPARE(rig.keys(), (QStringList{u"i1"_s, u"i2"_s}));
}

void TestAddressBookWindow::theKeysStayWhereContactsWereDeleted()
{
    FiveRig rig;
    rig.clickContact(2);
    rig.core->prompts.expectAnswer(Topic::DeleteContacts, Answer::Ok);
    rig.press(rig.book(), "cmdDelete");
    rig.core->prompts.answerAll();
    QCOMPARE(rig.contactList().currentIndex().data().toString(), u"Dan"_s);
    QCOMPARE(rig.selectedNames(), QString());
}

void TestAddressBookWindow::deletedContactsAreTheRightOnesWhenSorted()
{
    FiveRig rig;
    rig.clickHeading(1);
    rig.clickHeading(1);
    rig.clickContact(0);
    rig.clickContact(1, Qt::ControlModifier);
    rig.core->prompts.expectAnswer(Topic::DeleteContacts, Answer::Ok);
    rig.press(rig.book(), "cmdDelete");
    rig.core->prompts.answerAll();
    QCOMPARE(rig.shown(), (QStringList{u"Cleo"_s, u"Ben"_s, u"Eve"_s}));
}

void TestAddressBookWindow::headingsSort()
{
    const FiveRig rig;
    rig.clickContact(1);
    rig.clickHeading(0);
    QCOMPARE(rig.shown().front(), u"Ada"_s);
    QCOMPARE(rig.contactList().header()->sortIndicatorSection(), 0);
    rig.clickHeading(0);
    QCOMPARE(rig.shown().front(), u"Eve"_s);
    QCOMPARE(rig.contactList().header()->sortIndicatorOrder(), Qt::DescendingOrder);
    QCOMPARE(rig.selectedNames(), u"Ada"_s);
    rig.clickHeading(1);
    QCOMPARE(rig.shown(1),
             (QStringList{u"a.eve@mill.example"_s, u"ben@mill.example"_s, u"cleo@mill.example"_s,
                          u"dan@mill.example"_s, u"v.ada@mill.example"_s}));
    QCOMPARE(rig.contactList().header()->sortIndicatorSection(), 1);
}

void TestAddressBookWindow::whatIsTypedIsFound()
{
    const FiveRig rig;
    rig.find(u"e"_s);
    QCOMPARE(rig.shown().size(), 5);
    rig.find(u"ve"_s);
    QCOMPARE(rig.shown(), QStringList{u"Eve"_s});
    QCOMPARE(rig.count(), u"Shown: 1 of 5"_s);
    QTest::keyClick(&rig.part<QLineEdit>(rig.book(), "txtFind"), Qt::Key_Return);
    QVERIFY(rig.contactList().hasFocus());
}

void TestAddressBookWindow::escapeEndsTheSearchBeforeItClosesTheWindow()
{
    const FiveRig rig;
    rig.find(u"eve"_s);
    QTest::keyClick(&rig.part<QLineEdit>(rig.book(), "txtFind"), Qt::Key_Escape);
    QVERIFY(rig.book());
    QCOMPARE(rig.shown().size(), 5);
    QTest::keyClick(&rig.part<QLineEdit>(rig.book(), "txtFind"), Qt::Key_Escape);
    QVERIFY(!rig.book());
}

void TestAddressBookWindow::keysOfTheLists()
{
    FiveRig rig;
    rig.contactList().setFocus();
    QTest::keyClick(&rig.contactList(), Qt::Key_Insert);
    QVERIFY(rig.editor());
    QCOMPARE(rig.editor()->windowTitle(), u"New Contact"_s);
    QTest::keyClick(rig.editor(), Qt::Key_Escape);
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
        QVERIFY(!rig.editor());
        rig.clickContact(3);
        QTest::keyClick(&rig.contactList(), key);
        QVERIFY(rig.editor());
        QCOMPARE(rig.part<QLineEdit>(rig.editor(), "txtName").text(), u"Dan"_s);
        QTest::keyClick(rig.editor(), Qt::Key_Escape);
    }
    rig.core->prompts.expectAnswer(Topic::DeleteContacts, Answer::Cancel);
    QTest::keyClick(&rig.contactList(), Qt::Key_Delete);
    QCOMPARE(rig.core->prompts.openBoxes(), 1);
    rig.core->prompts.answerAll();
    rig.bookList().setFocus();
    rig.core->prompts.expectText(u"Insert the name for the new address book:"_s, {});
    QTest::keyClick(&rig.bookList(), Qt::Key_Insert);
    rig.core->prompts.answerAll();
    QTest::keyClick(&rig.bookList(), Qt::Key_Delete);
    QCOMPARE(rig.core->prompts.takeNoticeTexts(),
             QStringList{u"The standard address book can't be deleted."_s});
}

void TestAddressBookWindow::controlsWorkOnlyOnAWholeBook()
{
    const FiveRig rig;
    rig.write("soci.rub", "Zoe;zoe@mill.example\r\nbroken\r\n");
    const auto enabled = [&rig] {
        QStringList names;
        for (const char *name : {"cmdAdd", "cmdRemove", "cmdNew", "cmdEdit", "cmdDelete"}) {
            if (rig.part<QPushButton>(rig.book(), name).isEnabled())
                names.append(QLatin1String(name));
        }
        for (const QAction *action : rig.contactList().actions()) {
            if (action->isEnabled() && !action->isSeparator())
                names.append(action->text());
        }
        return names;
    };
    const QStringList harmless{u"Copy as text"_s, u"Add to recipients"_s};
    QCOMPARE(enabled().size(), 11);
    rig.clickBook(1);
    QCOMPARE(enabled(), (QStringList{u"cmdAdd"_s, u"cmdRemove"_s} + harmless));
    QVERIFY(rig.line().contains(u"line 2 has no \";\""_s));
    QCOMPARE(rig.shown(), QStringList{u"Zoe"_s});
    rig.doubleClickContact(0);
    QVERIFY(!rig.editor());
    rig.clickBook(0);
    QCOMPARE(rig.line(), QString());
    QCOMPARE(enabled().size(), 11);
}

void TestAddressBookWindow::anUnreadableListSaysSo()
{
    AddressBookRig rig;
    QVERIFY(QDir(rig.core->folder.path()).mkdir(u"rubrica.ini"_s));
    rig.openBook();
    QVERIFY(rig.line().startsWith(u"The list of the address books cannot be read: "_s));
    QVERIFY(!rig.part<QPushButton>(rig.book(), "cmdAdd").isEnabled());
    rig.press(rig.book(), "cmdClose");
    QVERIFY(!rig.book());
}

void TestAddressBookWindow::editingAndClosingWritesTheBookOnce()
{
    const FiveRig rig;
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    QCOMPARE(rig.content("standard.rub"), Five);
    rig.press(rig.book(), "cmdClose");
    QVERIFY(!rig.book());
    QVERIFY(rig.content("standard.rub").endsWith("\r\nFay;fay@mill.example;Fay;;;;;;;;;;;\r\n"));
}

void TestAddressBookWindow::closingHoldsForWhatIsToBeRead()
{
    const FiveRig rig;
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    rig.write("standard.rub", "Gus;gus@mill.example\r\n");
    rig.press(rig.book(), "cmdClose");
    QVERIFY(rig.book());
    QVERIFY(rig.line().contains(rig.path("standard (2).rub")));
    QCOMPARE(rig.shown(), QStringList{u"Gus"_s});
    rig.press(rig.book(), "cmdClose");
    QVERIFY(!rig.book());
}

void TestAddressBookWindow::theTitleBarClosesLikeTheButton()
{
    const FiveRig rig;
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    {
        const FileSizeLimit full(20);
        QVERIFY(!rig.book()->close());
        QVERIFY(rig.book());
    }
    QVERIFY(rig.book()->close());
    QVERIFY(rig.content("standard.rub").contains("Fay"));
}

void TestAddressBookWindow::endingTheSessionSavesTheOpenBook()
{
    const FiveRig rig;
    rig.press(rig.book(), "cmdNew");
    rig.enter(u"Fay"_s, u"fay@mill.example"_s);
    rig.window->endSession();
    QCOMPARE(rig.endings, 1);
    QVERIFY(rig.content("standard.rub").contains("Fay"));
}

void TestAddressBookWindow::selectedContactsAreCopiedAsText()
{
    const FiveRig rig;
    QGuiApplication::clipboard()->setText(u"before"_s);
    rig.contactList().clearSelection();
    rig.entry(u"Copy as text"_s).trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
    rig.clickContact(3);
    rig.clickContact(1, Qt::ControlModifier);
    rig.entry(u"Copy as text"_s).trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(),
             u"Ada\tv.ada@mill.example\nDan\tdan@mill.example\n"_s);
}

void TestAddressBookWindow::selectedContactsBecomeRecipients()
{
    FiveRig rig;
    rig.write("soci.rub", "Zoe;zoe@mill.example\r\nBad;nowhere\r\nAl;al@mill.example;;Mill;\r\n");
    rig.clickBook(1);
    rig.contactList().selectAll();
    rig.entry(u"Add to recipients"_s).trigger();
    QCOMPARE(rig.core->prompts.takeNoticeTexts(),
             QStringList{u"Recipients added: 2\r\nThese recipients couldn't be added:\r\n"
                         "Bad - nowhere"_s});
    const RecipientList &list = rig.core->w.recipients;
    QCOMPARE(list.count(), 2);
    QCOMPARE(list.at(1).name, u"Al"_s);
    QCOMPARE(list.at(1).imageIndex, RowImage::AddedByHand);
    QCOMPARE(list.at(2).address, u"zoe@mill.example"_s);
}

void TestAddressBookWindow::sizeAndColumnsAreRemembered()
{
    const FiveRig rig;
    rig.book()->resize(700, 500);
    rig.contactList().setColumnWidth(0, 123);
    rig.part<QSplitter>(rig.book(), "splitter").setSizes({300, 400});
    const QList<int> sizes = rig.part<QSplitter>(rig.book(), "splitter").sizes();
    rig.press(rig.book(), "cmdClose");
    QVERIFY(!rig.book());
    rig.window->findChild<QAction *>(u"mnuRubrica"_s)->trigger();
    QCOMPARE(rig.book()->size(), QSize(700, 500));
    QCOMPARE(rig.contactList().columnWidth(0), 123);
    QTRY_COMPARE(rig.part<QSplitter>(rig.book(), "splitter").sizes(), sizes);
}

void TestAddressBookWindow::tabFollowsTheReadingOrder()
{
    const FiveRig rig;
    const QStringList order{u"Rubriche"_s, u"cmdAdd"_s,  u"cmdRemove"_s, u"txtFind"_s, u"Elenco"_s,
                            u"cmdNew"_s,   u"cmdEdit"_s, u"cmdDelete"_s, u"cmdClose"_s};
    rig.bookList().setFocus();
    QStringList visited;
    for (qsizetype i = 0; i < order.size(); ++i) {
        visited.append(rig.book()->focusWidget()->objectName());
        QTest::keyClick(rig.book()->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited, order);
    QCOMPARE(rig.book()->focusWidget(), &rig.bookList());
}

void TestAddressBookWindow::everyControlCanBeNamed()
{
    const FiveRig rig;
    for (const char *name : {"Rubriche", "cmdAdd", "cmdRemove", "txtFind", "Elenco", "cmdNew",
                             "cmdEdit", "cmdDelete", "cmdClose"}) {
        QWidget *const widget = rig.book()->findChild<QWidget *>(QLatin1String(name));
        QAccessibleInterface *const face = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(!face->text(QAccessible::Name).isEmpty(), name);
    }
    rig.write("soci.rub", "broken\r\n");
    rig.clickBook(1);
    QAccessibleInterface *const line =
        QAccessible::queryAccessibleInterface(&rig.part<QLabel>(rig.book(), "lblLine"));
    QCOMPARE(line->text(QAccessible::Name), rig.line());
    QVERIFY(rig.line().contains(u"line 1 has no"_s));
}

void TestAddressBookWindow::aLanguageThatComesLaterIsSpoken()
{
    const FiveRig rig;
    const ItalianTexts italian;
    QCoreApplication::processEvents();
    QCOMPARE(rig.book()->windowTitle(), u"Rubrica"_s);
    QCOMPARE(rig.contactList().model()->headerData(1, Qt::Horizontal).toString(),
             u"Indirizzo E-Mail"_s);
    QCOMPARE(rig.count(), u"Mostrati: 5 di 5"_s);
    QCOMPARE(rig.contactList().actions().front()->text(), u"Nuovo"_s);
    rig.press(rig.book(), "cmdNew");
    QCOMPARE(rig.editor()->windowTitle(), u"Nuovo Contatto"_s);
}
