#include "TestBookChooser.h"

#include "AddressBookDriver.h"
#include "Languages.h"
#include "ui/frmRubriche.h"

using namespace Qt::StringLiterals;

namespace {

/// The chooser over a project with a recipient; two books.
struct ChooserRig : AddressBookRig
{
    explicit ChooserRig(Language language = Language::English) : AddressBookRig(language)
    {
        writeIndex({"Standard", "Soci"});
        write("standard.rub", "Ada;ada@mill.example\r\nBen;ben@mill.example#old;Ben;;\r\n");
        write("soci.rub", "Zoe - Mill;zoe@mill.example;Zoe;Mill;;;;;;;;;;\r\n");
        show();
        core->fillForm(1);
    }
    void open() { QTest::mouseClick(&get<QPushButton>("cmdFromRubrica"), Qt::LeftButton); }
    [[nodiscard]] frmRubriche *chooser() const { return dialog<frmRubriche>(); }
    [[nodiscard]] QTreeWidget &list() const { return part<QTreeWidget>(chooser(), "Rubriche"); }
    [[nodiscard]] QString recipientsFilePath() const
    {
        return core->w.form.tag(Control::txtDestinatari);
    }
    [[nodiscard]] QStringList recipients() const
    {
        QStringList rows;
        for (const Recipient &row : core->w.recipients.rows())
            rows.append(row.number + u' ' + row.name + u' ' + row.address);
        return rows;
    }
};

} // namespace

void TestBookChooser::captionsOfTheDialog_data()
{
    addLanguages();
}

void TestBookChooser::captionsOfTheDialog()
{
    QFETCH(const Language, language);
    const bool italian = language == Language::Italian;
    ChooserRig rig(language);
    rig.open();
    QCOMPARE(rig.chooser()->windowTitle(), italian ? u"Rubriche"_s : u"Address Books"_s);
    QCOMPARE(rig.part<QPushButton>(rig.chooser(), "cmdCancel").text(),
             italian ? u"&Annulla"_s : u"&Cancel"_s);
}

void TestBookChooser::theFirstBookIsSelected()
{
    ChooserRig rig;
    rig.open();
    QCOMPARE(rig.list().topLevelItemCount(), 2);
    QCOMPARE(rig.list().currentItem()->text(0), u"Standard"_s);
    QVERIFY(rig.list().currentItem()->isSelected());
    QCOMPARE(rig.chooser()->selectedFile(), u"standard.rub"_s);
    QVERIFY(rig.chooser()->Cancelled);
}

void TestBookChooser::aMissingListIsMade()
{
    ChooserRig rig;
    QVERIFY(QFile::remove(rig.path("rubrica.ini")));
    rig.open();
    QCOMPARE(rig.list().topLevelItemCount(), 1);
    rig.press(rig.chooser(), "cmdOK");
    QVERIFY(rig.core->prompts.takeNotices().isEmpty());
    QCOMPARE(rig.recipients(), QStringList());
}

void TestBookChooser::aChosenBookBecomesTheRecipients()
{
    ChooserRig rig;
    rig.open();
    rig.press(rig.chooser(), "cmdOK");
    QVERIFY(!rig.chooser());
    QCOMPARE(rig.recipients(),
             (QStringList{u"1 Ada ada@mill.example"_s, u"2 Ben ben@mill.example"_s}));
    const Recipient &first = rig.core->w.recipients.at(1);
    QVERIFY(first.checked);
    QCOMPARE(first.imageIndex, RowImage::Checked);
    QCOMPARE(first.state, u"Waiting"_s);
    // A bare name lies in the program's folder.
    QCOMPARE(rig.recipientsFilePath(), rig.path("standard.rub"));
    QVERIFY(rig.core->w.form.projectModified());
    QCOMPARE(rig.core->logged(),
             QStringList{u"Recipients file '"_s + rig.path("standard.rub") + u"' loaded"_s});
}

void TestBookChooser::contactsWithoutAValidAddressAreReported()
{
    ChooserRig rig;
    rig.write("standard.rub", "Ada;ada@mill.example;;\r\nBad;nowhere;;\r\n");
    rig.open();
    rig.press(rig.chooser(), "cmdOK");
    QCOMPARE(rig.recipients(), QStringList{u"1 Ada ada@mill.example"_s});
    QCOMPARE(rig.core->prompts.takeNoticeTexts(),
             QStringList{u"These recipients couldn't be added:\r\nBad - nowhere\r\n"_s});
}

void TestBookChooser::aDoubleClickConfirmsWithTheClickedBook()
{
    ChooserRig rig;
    rig.open();
    const QPoint place = rig.list().visualItemRect(rig.list().topLevelItem(1)).center();
    QTest::mouseClick(rig.list().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(rig.list().viewport(), Qt::LeftButton, {}, place);
    QVERIFY(!rig.chooser());
    QCOMPARE(rig.recipients(), QStringList{u"1 Zoe - Mill zoe@mill.example"_s});
}

void TestBookChooser::enterConfirms()
{
    ChooserRig rig;
    rig.open();
    rig.list().setFocus();
    QTest::keyClick(&rig.list(), Qt::Key_Down);
    QTest::keyClick(&rig.list(), Qt::Key_Return);
    QVERIFY(!rig.chooser());
    QCOMPARE(rig.recipients(), QStringList{u"1 Zoe - Mill zoe@mill.example"_s});
}

void TestBookChooser::cancellingChangesNothing_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("button") << 0;
    QTest::newRow("Esc") << 1;
    QTest::newRow("title bar") << 2;
}

void TestBookChooser::cancellingChangesNothing()
{
    QFETCH(const int, way);
    ChooserRig rig;
    const QStringList before = rig.recipients();
    rig.open();
    if (way == 0)
        rig.press(rig.chooser(), "cmdCancel");
    else if (way == 1)
        QTest::keyClick(rig.chooser(), Qt::Key_Escape);
    else
        rig.chooser()->close();
    QVERIFY(!rig.chooser());
    QCOMPARE(rig.recipients(), before);
    QCOMPARE(rig.recipientsFilePath(), QString());
    QVERIFY(!rig.core->w.form.projectModified());
}

void TestBookChooser::aListWithNothingSelectedChoosesNothing()
{
    ChooserRig rig;
    rig.open();
    rig.list().clearSelection();
    QVERIFY(!rig.chooser()->selectedFile());
    rig.press(rig.chooser(), "cmdOK");
    QVERIFY(!rig.chooser());
    QVERIFY(!rig.core->w.form.projectModified());
}

void TestBookChooser::anEmptyListChoosesNothing()
{
    ChooserRig rig;
    rig.write("rubrica.ini", {});
    const QStringList before = rig.recipients();
    rig.open();
    QCOMPARE(rig.list().topLevelItemCount(), 0);
    QVERIFY(!rig.chooser()->selectedFile());
    rig.press(rig.chooser(), "cmdOK");
    QVERIFY(!rig.chooser());
    QCOMPARE(rig.recipients(), before);
    QVERIFY(!rig.core->w.form.projectModified());
}

void TestBookChooser::anUnreadableListSaysSo()
{
    ChooserRig rig;
    QVERIFY(QFile::remove(rig.path("rubrica.ini")));
    QVERIFY(QDir(rig.core->folder.path()).mkdir(u"rubrica.ini"_s));
    rig.open();
    const QLabel &line = rig.part<QLabel>(rig.chooser(), "lblLine");
    QVERIFY(line.isVisible());
    QVERIFY(line.text().startsWith(u"The list of the address books cannot be read: "_s));
    rig.press(rig.chooser(), "cmdOK");
    QVERIFY(!rig.core->w.form.projectModified());
}

void TestBookChooser::anEmptyBookEmptiesTheRecipients()
{
    ChooserRig rig;
    rig.write("standard.rub", {});
    rig.open();
    rig.press(rig.chooser(), "cmdOK");
    QCOMPARE(rig.recipients(), QStringList());
    QCOMPARE(rig.core->logged(),
             QStringList{u"Recipients file '"_s + rig.path("standard.rub") + u"' loaded"_s});
    QVERIFY(rig.core->prompts.takeNotices().isEmpty());
}

void TestBookChooser::aBookWhoseFileIsMissingIsAFailedImport()
{
    ChooserRig rig;
    QVERIFY(QFile::remove(rig.path("standard.rub")));
    rig.open();
    rig.press(rig.chooser(), "cmdOK");
    QCOMPARE(rig.core->prompts.takeNoticeTexts(),
             QStringList{u"Unable to load the specified list of recipients!"_s});
    QCOMPARE(rig.recipientsFilePath(), rig.path("standard.rub"));
}

void TestBookChooser::sizeIsRemembered()
{
    ChooserRig rig;
    rig.open();
    rig.chooser()->resize(500, 444);
    rig.press(rig.chooser(), "cmdCancel");
    rig.open();
    QCOMPARE(rig.chooser()->size(), QSize(500, 444));
}
