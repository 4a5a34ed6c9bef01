#include "TestContactEditor.h"

#include "AddressBookDriver.h"
#include "Languages.h"

#include <QClipboard>

using namespace Qt::StringLiterals;

namespace {

struct Field
{
    const char *control;
    const char *label;
    const char *english;
    const char *italian;
    ContactColumn column;
};

const std::array Fields{
    Field{"txtName", "lblNome", "Name:", "Nome:", ContactColumn::Name},
    Field{"txtCompany", "lblAzienda", "Company:", "Azienda:", ContactColumn::Company},
    Field{"txtEmail", "lblEmail", "E-Mail:", "E-Mail:", ContactColumn::Email},
    Field{"txtAddress", "lblIndirizzo", "Address:", "Indirizzo:", ContactColumn::Address},
    Field{"txtCity", "lblCity", "Town/City:", "Città:", ContactColumn::City},
    Field{"txtState", "lblProv", "State:", "Provincia:", ContactColumn::State},
    Field{"txtCAP", "lblCAP", "Post/Zip Code:", "CAP:", ContactColumn::PostCode},
    Field{"txtCountry", "lblStato", "Country:", "Stato:", ContactColumn::Country},
    Field{"txtTel", "lblTelefono", "Telephone:", "Telefono:", ContactColumn::Telephone},
    Field{"txtFax", "lblFax", "Fax:", "Fax:", ContactColumn::Fax},
    Field{"txtCel", "lblCell", "Mobile phone:", "Cellulare:", ContactColumn::Mobile},
    Field{"txtNotes", "lblNote", "Notes:", "Note:", ContactColumn::Notes},
};

struct EditorRig : AddressBookRig
{
    explicit EditorRig(Language language = Language::English) : AddressBookRig(language)
    {
        openBook();
    }
    void openNew() const { press(book(), "cmdNew"); }
    [[nodiscard]] QString text(const char *control) const
    {
        return editor()->findChild<QWidget *>(QLatin1String(control))->property("text").toString();
    }
    [[nodiscard]] QString windowAndLabels() const
    {
        QStringList texts{editor()->windowTitle()};
        for (const Field &field : Fields)
            texts.append(text(field.label));
        return texts.join(u'|');
    }
};

} // namespace

void TestContactEditor::captionsOfTheControls_data()
{
    addLanguages();
}

void TestContactEditor::captionsOfTheControls()
{
    QFETCH(const Language, language);
    const bool italian = language == Language::Italian;
    const EditorRig rig(language);
    rig.openNew();
    QCOMPARE(rig.editor()->windowTitle(), italian ? u"Nuovo Contatto"_s : u"New Contact"_s);
    for (const Field &field : Fields)
        QCOMPARE(rig.text(field.label), QString::fromUtf8(italian ? field.italian : field.english));
    QCOMPARE(rig.text("cmdOK"), u"OK"_s);
    QCOMPARE(rig.text("cmdCancel"), italian ? u"&Annulla"_s : u"&Cancel"_s);
    rig.enter(u"Ada"_s, u"ada@mill.example"_s);
    rig.clickContact(0);
    rig.press(rig.book(), "cmdEdit");
    QCOMPARE(rig.editor()->windowTitle(), italian ? u"Modifica Contatto"_s : u"Edit Contact"_s);
}

void TestContactEditor::theLanguageIsThatOfTheCaption_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("isEnglish");
    QTest::newRow("the English caption") << u"Address Book"_s << true;
    QTest::newRow("the Italian caption") << u"Rubrica"_s << false;
    QTest::newRow("any other") << u"Address book"_s << false;
}

void TestContactEditor::theLanguageIsThatOfTheCaption()
{
    QFETCH(const QString, caption);
    QFETCH(const bool, isEnglish);
    EditorRig rig(Language::Italian);
    rig.book()->setWindowTitle(caption);
    rig.openNew();
    QCOMPARE(rig.editor()->windowTitle(), isEnglish ? u"New Contact"_s : u"Nuovo Contatto"_s);
    QCOMPARE(rig.text("lblCity"), isEnglish ? u"Town/City:"_s : u"Città:"_s);
    rig.press(rig.editor(), "cmdOK");
    QCOMPARE(rig.core->prompts.takeNotices().front().title, isEnglish ? u"Error"_s : u"Avviso"_s);
}

void TestContactEditor::editingShowsAllFields()
{
    AddressBookRig rig;
    rig.writeIndex({"Standard"});
    rig.write("standard.rub", "shown;c4;c2;c3;c5;c6;c7;c8;c9;c10;c11;c12;c13\\n\\rmore;\r\n");
    rig.openBook();
    rig.clickContact(0);
    rig.press(rig.book(), "cmdEdit");
    for (const Field &field : Fields) {
        if (field.column != ContactColumn::Notes)
            QCOMPARE(rig.part<QLineEdit>(rig.editor(), field.control).text(),
                     u'c' + QString::number(static_cast<int>(field.column)));
    }
    QCOMPARE(rig.part<QPlainTextEdit>(rig.editor(), "txtNotes").toPlainText(), u"c13\nmore"_s);
}

void TestContactEditor::everyFieldComesBack()
{
    const EditorRig rig;
    rig.openNew();
    for (const Field &field : Fields) {
        QWidget *const box = rig.editor()->findChild<QWidget *>(QLatin1String(field.control));
        QTest::keyClicks(box, field.column == ContactColumn::Email
                                  ? u"a@b.example"_s
                                  : u'c' + QString::number(static_cast<int>(field.column)));
    }
    rig.press(rig.editor(), "cmdOK");
    rig.press(rig.book(), "cmdClose");
    QCOMPARE(rig.content("rubrica.rub"),
             "c2 - c3;a@b.example;c2;c3;c5;c6;c7;c8;c9;c10;c11;c12;c13;\r\n"_ba);
}

void TestContactEditor::notesOfSeveralLinesAreKept()
{
    const EditorRig rig;
    rig.openNew();
    rig.part<QPlainTextEdit>(rig.editor(), "txtNotes").insertPlainText(u"one\ntwo\n"_s);
    rig.enter(u"Ada"_s, u"ada@mill.example"_s);
    rig.press(rig.book(), "cmdClose");
    QCOMPARE(rig.content("rubrica.rub"),
             "Ada;ada@mill.example;Ada;;;;;;;;;;one\\n\\rtwo\\n\\r;\r\n"_ba);
}

void TestContactEditor::notesThatNobodyTouchedStayAsTheyAre()
{
    AddressBookRig rig;
    const QByteArray line = "Ada;ada@mill.example;Ada;;;;;;;;;;a\xA0"
                            "b;c\\n\\r \\n\\r;\r\n";
    rig.writeIndex({"Standard"});
    rig.write("standard.rub", line);
    rig.openBook();
    rig.clickContact(0);
    rig.press(rig.book(), "cmdEdit");
    rig.press(rig.editor(), "cmdOK");
    rig.press(rig.book(), "cmdClose");
    QCOMPARE(rig.content("standard.rub"), line);
}

void TestContactEditor::notesKeepTheirBlanksWhenMoreIsWritten()
{
    AddressBookRig rig;
    rig.writeIndex({"Standard"});
    rig.write("standard.rub", "Ada;ada@mill.example;Ada;;;;;;;;;;a\xA0"
                              "b\\n\\rc;\r\n");
    rig.openBook();
    rig.clickContact(0);
    rig.press(rig.book(), "cmdEdit");
    rig.part<QPlainTextEdit>(rig.editor(), "txtNotes").insertPlainText(u"x"_s);
    rig.press(rig.editor(), "cmdOK");
    rig.press(rig.book(), "cmdClose");
    QCOMPARE(rig.content("standard.rub"), "Ada;ada@mill.example;Ada;;;;;;;;;;xa\xA0"
                                          "b\\n\\rc;\r\n"_ba);
}

void TestContactEditor::lineEndsThatWerePastedAreDropped()
{
    const EditorRig rig;
    rig.openNew();
    const auto paste = [&rig](const char *box, const QString &text) {
        QGuiApplication::clipboard()->setText(text);
        rig.part<QLineEdit>(rig.editor(), box).paste();
    };
    paste("txtName", u"Fay\nMill"_s);
    paste("txtEmail", u"fay@mill.example\r\n"_s);
    rig.press(rig.editor(), "cmdOK");
    rig.press(rig.book(), "cmdClose");
    QCOMPARE(rig.content("rubrica.rub"), "Fay Mill;fay@mill.example;Fay Mill;;;;;;;;;;;\r\n"_ba);
}

void TestContactEditor::fieldsLongerThanABoxShowsAreKept()
{
    AddressBookRig rig;
    const QByteArray line =
        "Ada;ada@mill.example;Ada;;" + QByteArray(100000, 'x') + ";a\\n\\rb;;;;;;;;\r\n";
    rig.writeIndex({"Standard"});
    rig.write("standard.rub", line);
    rig.openBook();
    rig.clickContact(0);
    rig.press(rig.book(), "cmdEdit");
    rig.press(rig.editor(), "cmdOK");
    rig.press(rig.book(), "cmdClose");
    QCOMPARE(rig.content("standard.rub"), line);
}

void TestContactEditor::aRefusedContactStaysOpen()
{
    EditorRig rig;
    rig.openNew();
    rig.enter(u"Ada"_s, u""_s);
    QVERIFY(rig.editor());
    QVERIFY(rig.editor()->Cancelled);
    QCOMPARE(rig.core->prompts.takeNoticeTexts(),
             QStringList{u"You must fill 'Name' or 'Company' fields and 'E-Mail' field."_s});
    rig.enter(u"Ada"_s, u"nowhere"_s);
    QVERIFY(rig.editor());
    QCOMPARE(rig.core->prompts.takeNoticeTexts(),
             QStringList{u"The specified e-mail address isn't valid."_s});
    rig.enter(u"  "_s, u"ada@mill.example"_s);
    QVERIFY(!rig.editor());
    QCOMPARE(rig.shown(), QStringList{u"  "_s});
}

void TestContactEditor::escapeAndTheTitleBarCancel_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Esc") << true;
    QTest::newRow("title bar") << false;
}

void TestContactEditor::escapeAndTheTitleBarCancel()
{
    QFETCH(const bool, byKey);
    const EditorRig rig;
    rig.openNew();
    rig.type("txtName", u"Ada"_s);
    rig.type("txtEmail", u"ada@mill.example"_s);
    if (byKey)
        QTest::keyClick(rig.editor(), Qt::Key_Escape);
    else
        rig.editor()->close();
    QVERIFY(!rig.editor());
    QCOMPARE(rig.shown(), QStringList());
}

void TestContactEditor::enterConfirms()
{
    const EditorRig rig;
    rig.openNew();
    rig.type("txtName", u"Ada"_s);
    auto &address = rig.part<QLineEdit>(rig.editor(), "txtEmail");
    rig.type("txtEmail", u"ada@mill.example"_s);
    address.setFocus();
    QTest::keyClick(&address, Qt::Key_Return);
    QVERIFY(!rig.editor());
    QCOMPARE(rig.shown(), QStringList{u"Ada"_s});
}

void TestContactEditor::sizeIsRemembered()
{
    const EditorRig rig;
    rig.openNew();
    rig.editor()->resize(600, 700);
    rig.press(rig.editor(), "cmdCancel");
    rig.openNew();
    QCOMPARE(rig.editor()->size(), QSize(600, 700));
}

void TestContactEditor::tabFollowsTheReadingOrder()
{
    const EditorRig rig;
    rig.openNew();
    rig.editor()->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), rig.editor());
    QStringList expected;
    for (const Field &field : Fields)
        expected.append(QLatin1String(field.control));
    expected.append({u"cmdOK"_s, u"cmdCancel"_s});
    QStringList visited;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        visited.append(rig.editor()->focusWidget()->objectName());
        QTest::keyClick(rig.editor()->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited, expected);
}

void TestContactEditor::everyFieldHasItsLabel()
{
    const EditorRig rig;
    rig.openNew();
    for (const Field &field : Fields) {
        const auto &label = rig.part<QLabel>(rig.editor(), field.label);
        QVERIFY2(label.buddy() != nullptr, field.label);
        QCOMPARE(label.buddy()->objectName(), QLatin1String(field.control));
    }
}
