#include "TestDialogs.h"

#include "Languages.h"
#include "WindowRig.h"
#include "ui/RecipientView.h"
#include "ui/frmAbout.h"
#include "ui/frmEditor.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// A dialog opened from the main window's menu.
template <typename Dialog>
struct DialogRig : WindowRig
{
    DialogRig(const char *entry, Language language = Language::English) : WindowRig(language)
    {
        show();
        get<QAction>(entry).trigger();
        dialog = window->findChild<Dialog *>();
        if (!dialog || !dialog->isVisible())
            qFatal("the dialog did not open");
    }
    template <typename Widget>
    Widget &in(const char *name)
    {
        auto *const found = dialog->template findChild<Widget *>(QLatin1String(name));
        if (!found)
            qFatal("the dialog has no %s of that kind", name);
        return *found;
    }

    QPointer<Dialog> dialog;
};

struct EditorRig : DialogRig<frmEditor>
{
    explicit EditorRig(Language language = Language::English)
        : DialogRig("mnuEditor", language), settings(core->w.windowSettings)
    {}

    WindowSettings &settings;
};

} // namespace

void TestDialogs::editorChooserShowsTheEditors()
{
    EditorRig rig;
    QCOMPARE(rig.in<QLineEdit>("txtTextEditor").text(), u"notepad.exe"_s);
    QCOMPARE(rig.in<QLineEdit>("txtHTMLEditor").text(),
             rig.core->folder.filePath(u"htmledit.exe"_s));
}

void TestDialogs::editorCaptions_data()
{
    addLanguages();
}

void TestDialogs::editorCaptions()
{
    QFETCH(Language, language);
    EditorRig rig(language);
    const bool isItalian = language == Language::Italian;
    QCOMPARE(rig.dialog->windowTitle(), isItalian ? u"Selezione Editor"_s : u"Select Editor"_s);
    QCOMPARE(rig.in<QLabel>("lblTextEditor").text(),
             isItalian ? u"Editor di testo:"_s : u"Text editor:"_s);
    QCOMPARE(rig.in<QLabel>("lblHTMLEditor").text(),
             isItalian ? u"Editor HTML:"_s : u"HTML editor:"_s);
    for (const char *button : {"cmdBrowseTxt", "cmdBrowseHTML"})
        QCOMPARE(rig.in<QPushButton>(button).text(), isItalian ? u"Sfoglia..."_s : u"Browse..."_s);
    QCOMPARE(rig.in<QPushButton>("cmdCancel").text(), isItalian ? u"Annulla"_s : u"Cancel"_s);
    QCOMPARE(rig.in<QPushButton>("cmdOK").text(), u"OK"_s);
}

void TestDialogs::okStoresTheEditors()
{
    EditorRig rig;
    rig.in<QLineEdit>("txtTextEditor").setText(u"kate"_s);
    rig.in<QLineEdit>("txtHTMLEditor").setText(u"bluefish"_s);
    QTest::keyClick(&rig.in<QLineEdit>("txtHTMLEditor"), Qt::Key_Return);
    QCOMPARE(rig.settings.TXTEditorPath, u"kate"_s);
    QCOMPARE(rig.settings.HTMLEditorPath, u"bluefish"_s);
    QTRY_VERIFY(!rig.dialog);
}

void TestDialogs::okWithBothBoxesEmptyStoresTheDefaults()
{
    EditorRig rig;
    rig.settings.setEditors(u"kate"_s, u"bluefish"_s);
    rig.in<QLineEdit>("txtTextEditor").clear();
    rig.in<QLineEdit>("txtHTMLEditor").clear();
    rig.in<QPushButton>("cmdOK").click();
    QCOMPARE(rig.settings.TXTEditorPath, u"notepad.exe"_s);
    QCOMPARE(rig.settings.HTMLEditorPath, rig.core->folder.filePath(u"htmledit.exe"_s));
}

void TestDialogs::cancelAndEscapeChangeNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::addRow("Cancel") << false;
    QTest::addRow("Escape") << true;
}

void TestDialogs::cancelAndEscapeChangeNothing()
{
    QFETCH(bool, escape);
    EditorRig rig;
    auto &box = rig.in<QLineEdit>("txtTextEditor");
    box.setText(u"kate"_s);
    if (escape)
        QTest::keyClick(&box, Qt::Key_Escape);
    else
        rig.in<QPushButton>("cmdCancel").click();
    QCOMPARE(rig.settings.TXTEditorPath, u"notepad.exe"_s);
    QTRY_VERIFY(!rig.dialog);
}

void TestDialogs::browsingFillsTheBox()
{
    EditorRig rig;
    rig.core->prompts.expectFile(u"Select Editor"_s, u"/usr/bin/bluefish"_s);
    rig.in<QPushButton>("cmdBrowseHTML").click();
    rig.core->prompts.answerAll();
    QCOMPARE(rig.in<QLineEdit>("txtHTMLEditor").text(), u"/usr/bin/bluefish"_s);
    const FileDialog &dialog = rig.core->prompts.fileDialogs.front();
    QCOMPARE(dialog.initialFolder, rig.core->folder.path());
    QVERIFY(dialog.filter.startsWith(u"Program File (*.exe)|*.exe|"_s));
}

void TestDialogs::browsingCancelledKeepsTheBox()
{
    EditorRig rig;
    rig.core->prompts.expectFile(u"Select Editor"_s, {});
    rig.in<QPushButton>("cmdBrowseTxt").click();
    rig.core->prompts.answerAll();
    QCOMPARE(rig.in<QLineEdit>("txtTextEditor").text(), u"notepad.exe"_s);
}

void TestDialogs::aboutShowsTheVersion()
{
    DialogRig<frmAbout> rig("mnuAbout");
    QCOMPARE(rig.in<QLabel>("lblVer").text(), u"Sorvanta 2.0.0"_s);
    QCOMPARE(rig.in<QLabel>("Label19").text(), u"E-Mail:"_s);
    QCOMPARE(rig.in<QLabel>("Label20").text(), u"Web Site:"_s);
    QVERIFY(!rig.in<QLabel>("Picture1").pixmap().isNull());
}

void TestDialogs::aboutCaption_data()
{
    addLanguages();
}

void TestDialogs::aboutCaption()
{
    QFETCH(Language, language);
    DialogRig<frmAbout> rig("mnuAbout", language);
    QCOMPARE(rig.dialog->windowTitle(),
             language == Language::Italian ? u"Informazioni su Sorvanta..."_s : u"About..."_s);
    QVERIFY(rig.dialog->isModal());
}

void TestDialogs::linksOfTheAboutBoxOpen_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("address");
    QTest::addRow("product") << u"Label2"_s << u"https://www.calvessa.example/sorvanta"_s;
    QTest::addRow("home page") << u"lblSito"_s << u"https://www.calvessa.example/"_s;
    QTest::addRow("e-mail") << u"lblEmail"_s << u"mailto:info@calvessa.example"_s;
}

void TestDialogs::linksOfTheAboutBoxOpen()
{
    QFETCH(QString, label);
    QFETCH(QString, address);
    DialogRig<frmAbout> rig("mnuAbout");
    auto &link = rig.in<QLabel>(qPrintable(label));
    QTest::mouseClick(&link, Qt::LeftButton, {}, {10, link.height() / 2});
    QCOMPARE(rig.shell.opened, {address});
}

void TestDialogs::okClosesTheAboutBox()
{
    DialogRig<frmAbout> rig("mnuAbout");
    QTest::keyClick(rig.dialog, Qt::Key_Return);
    QTRY_VERIFY(!rig.dialog);
}

void TestDialogs::sizeAndColumnsAreRemembered()
{
    WindowRig rig;
    rig.show();
    rig.window->resize(1230, 700);
    rig.get<RecipientView>("lstDestinatari").setColumnWidth(1, 111);
    rig.window->close();
    frmMain again(rig.parts());
    again.Form_Load({});
    again.show();
    QVERIFY(QTest::qWaitForWindowExposed(&again));
    QCOMPARE(again.size(), QSize(1230, 700));
    QCOMPARE(again.findChild<RecipientView *>()->columnWidth(1), 111);
}

void TestDialogs::damagedMemoryOfTheWindowIsIgnored()
{
    WindowRig rig;
    rig.core->file(u"window.ini"_s,
                   "[General]\ngeometry=@ByteArray(rubbish)\ncolumns=-5, 99999999\n");
    frmMain again(rig.parts());
    again.Form_Load({});
    again.show();
    QVERIFY(QTest::qWaitForWindowExposed(&again));
    const auto &view = *again.findChild<RecipientView *>();
    QVERIFY(view.header()->length() <= view.viewport()->width());
}
