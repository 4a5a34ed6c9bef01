#include "TestMainWindow.h"

#include "Languages.h"
#include "WindowRig.h"
#include "ui/HtmlView.h"
#include "ui/frmPreview.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

void TestMainWindow::typedTextsReachTheForm()
{
    WindowRig rig;
    rig.show();
    auto &server = rig.get<QLineEdit>("txtServer");
    server.setFocus();
    QTest::keyClicks(&server, u"mail.example.org"_s);
    QCOMPARE(rig.core->w.form.text(Control::txtServer), u"mail.example.org"_s);
    QVERIFY(rig.core->w.form.projectModified());
}

void TestMainWindow::pastedLinesBecomeOne()
{
    WindowRig rig;
    rig.show();
    QGuiApplication::clipboard()->setText(u"News\nof May"_s);
    auto &subject = rig.get<QLineEdit>("txtOggetto");
    QTest::keyClick(&subject, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(rig.core->w.form.text(Control::txtOggetto), u"News of May"_s);
    QCOMPARE(subject.text(), u"News of May"_s);
}

void TestMainWindow::fullPathIsTheTooltip()
{
    WindowRig rig;
    rig.show();
    const QString path = u"/home/anna/documents/"_s + QString(80, u'x') + u"/letter.txt"_s;
    rig.core->w.form.setTag(Control::txtEmail, path);
    rig.core->w.form.setText(Control::txtEmail, u"/.../letter.txt"_s);
    QCOMPARE(rig.get<QLineEdit>("txtEmail").toolTip(), path);
    QCOMPARE(rig.get<QLineEdit>("txtEmail").text(), u"/.../letter.txt"_s);
}

void TestMainWindow::checksReachTheForm()
{
    WindowRig rig;
    rig.show();
    QTest::mouseClick(&rig.get<QCheckBox>("chkRicevuta"), Qt::LeftButton, {}, {8, 8});
    QVERIFY(rig.core->w.form.isChecked(Control::chkRicevuta));
    rig.core->w.form.setChecked(Control::chkMultiSend, true);
    QVERIFY(rig.get<QCheckBox>("chkMultiSend").isChecked());
}

void TestMainWindow::cursorStaysWhereTheUserTypes()
{
    WindowRig rig;
    rig.show();
    auto &subject = rig.get<QLineEdit>("txtOggetto");
    rig.core->w.form.setText(Control::txtOggetto, u"News of May"_s);
    subject.setCursorPosition(4);
    QTest::keyClicks(&subject, u"!!"_s);
    QCOMPARE(rig.core->w.form.text(Control::txtOggetto), u"News!! of May"_s);
    QCOMPARE(subject.cursorPosition(), 6);
}

void TestMainWindow::shortcutsPressTheirButtons_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::addColumn<QString>("title");
    QTest::addRow("Open") << QKeySequence(Qt::CTRL | Qt::Key_O) << u"Select the file to open:"_s;
    QTest::addRow("Save") << QKeySequence(Qt::CTRL | Qt::Key_S) << u"Select the file to save:"_s;
    QTest::addRow("Save as") << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)
                             << u"Select the file to save:"_s;
}

void TestMainWindow::shortcutsPressTheirButtons()
{
    QFETCH(QKeySequence, keys);
    QFETCH(QString, title);
    WindowRig rig;
    rig.show();
    rig.core->prompts.expectFile(title, {});
    QTest::keySequence(rig.window.get(), keys);
    rig.core->prompts.answerAll();
    QCOMPARE(rig.core->prompts.fileDialogs.size(), 1);
}

void TestMainWindow::shortcutWorksWhereTheMenuIsDisabled()
{
    WindowRig rig;
    rig.show();
    rig.core->fillForm(2);
    rig.core->startSending();
    rig.core->w.engine.cmdPausa_Click();
    rig.core->finishMessage();
    QVERIFY(!rig.get<QMenu>("mnuFile").isEnabled());
    rig.core->prompts.expectFile(u"Select the file to save:"_s, {});
    QTest::keySequence(rig.window.get(), QKeySequence(Qt::CTRL | Qt::Key_S));
    rig.core->prompts.answerAll();
    QCOMPARE(rig.core->prompts.fileDialogs.size(), 1);
}

void TestMainWindow::shortcutOfADisabledButtonDoesNothing()
{
    WindowRig rig;
    rig.show();
    rig.core->fillForm(2);
    rig.core->startSending();
    for (const int key : {Qt::Key_N, Qt::Key_O, Qt::Key_S})
        QTest::keySequence(rig.window.get(), QKeySequence(Qt::CTRL | key));
    QVERIFY(rig.core->prompts.fileDialogs.isEmpty());
    QVERIFY(rig.core->prompts.questions.isEmpty());
    QCOMPARE(rig.core->w.recipients.count(), 2);
}

void TestMainWindow::menusShowTheShortcuts()
{
    WindowRig rig;
    QCOMPARE(rig.get<QAction>("mnuNuovo").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
    QCOMPARE(rig.get<QAction>("mnuSalvaConNome").shortcut(),
             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
}

void TestMainWindow::f5OpensThePreviewOfTheHtml()
{
    WindowRig rig;
    rig.show();
    rig.core->useTextMessage("Dear *NOME*");
    rig.core->useHtmlMessage("<p>Dear <b>*NOME*</b></p>");
    QTest::keyClick(rig.window.get(), Qt::Key_F5);
    auto &preview = rig.get<frmPreview>("frmPreview");
    QVERIFY(preview.isVisible());
    QVERIFY(rig.get<QRadioButton>("Option2").isChecked());
    QCOMPARE(preview.findChild<HtmlView *>()->plainText().trimmed(), u"Dear *NOME*"_s);
}

void TestMainWindow::previewKnowsTheRecipients()
{
    WindowRig rig;
    rig.show();
    rig.core->fillForm(3);
    QTest::keyClick(rig.window.get(), Qt::Key_F5);
    auto &names = rig.get<QComboBox>("cboNome");
    QCOMPARE(names.count(), 4);
    names.setCurrentIndex(2);
    QCOMPARE(rig.get<frmPreview>("frmPreview").findChild<QPlainTextEdit *>()->toPlainText(),
             u"Dear Name 2,\n"_s);
}

void TestMainWindow::previewOpensFromTheMenuOfItsBox_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("option");
    QTest::addRow("text") << u"txtEmail"_s << u"Option1"_s;
    QTest::addRow("HTML") << u"txtHTML"_s << u"Option2"_s;
}

void TestMainWindow::previewOpensFromTheMenuOfItsBox()
{
    QFETCH(QString, box);
    QFETCH(QString, option);
    WindowRig rig;
    rig.show();
    rig.core->useTextMessage("Dear *NOME*");
    rig.core->useHtmlMessage("<p>Dear <b>*NOME*</b></p>");
    auto &edit = rig.get<QLineEdit>(qPrintable(box));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, edit.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&edit, &event);
    auto *const menu = edit.findChild<QMenu *>();
    QVERIFY(menu);
    QAction *const entry = menu->actions().constLast();
    QCOMPARE(entry->text(), u"Preview"_s);
    entry->trigger();
    delete menu;
    QVERIFY(rig.get<frmPreview>("frmPreview").isVisible());
    QVERIFY(rig.get<QRadioButton>(qPrintable(option)).isChecked());
}

void TestMainWindow::previewHasItsCaptions_data()
{
    addLanguages();
}

void TestMainWindow::previewHasItsCaptions()
{
    QFETCH(Language, language);
    const bool isItalian = language == Language::Italian;
    WindowRig rig(language);
    rig.show();
    rig.core->useTextMessage("Dear *NOME*");
    QTest::keyClick(rig.window.get(), Qt::Key_F5);
    auto &preview = rig.get<frmPreview>("frmPreview");
    QCOMPARE(preview.windowTitle(), isItalian ? u"Anteprima"_s : u"Preview"_s);
    QCOMPARE(rig.get<QRadioButton>("Option1").text(), isItalian ? u"Testo"_s : u"Text"_s);
    QCOMPARE(rig.get<QRadioButton>("Option2").text(), u"HTML"_s);
    QCOMPARE(rig.get<QPushButton>("cmdChiudi").text(), isItalian ? u"Chiudi"_s : u"Close"_s);
    const auto &format = *preview.findChild<QLabel *>(u"Label1"_s);
    QCOMPARE(format.text(), isItalian ? u"Formato: testo"_s : u"Format: plain text"_s);
    preview.SetMode(true);
    QCOMPARE(format.text(), isItalian ? u"Formato: HTML"_s : u"Format: HTML"_s);
    QCOMPARE(rig.get<QComboBox>("cboNome").itemText(0),
             isItalian ? u"Come è scritto"_s : u"As written"_s);
}

void TestMainWindow::helpPagesAreTheSameInBothLanguages_data()
{
    addLanguages();
}

void TestMainWindow::helpPagesAreTheSameInBothLanguages()
{
    QFETCH(Language, language);
    WindowRig rig(language);
    rig.get<QAction>("mnuCominciare").trigger();
    rig.get<QAction>("mnuContenuti").trigger();
    const QString folder = u"file://"_s + rig.core->folder.path();
    QCOMPARE(rig.shell.opened, QStringList({folder + u"/Help/Tutorial/come_cominciare.htm"_s,
                                            folder + u"/Help/ita_help.htm"_s}));
}

void TestMainWindow::exitEndsAtOnce()
{
    WindowRig rig;
    rig.show();
    rig.core->w.form.setText(Control::txtOggetto, u"News"_s);
    rig.get<QAction>("mnuEsci").trigger();
    QCOMPARE(rig.endings, 1);
    QVERIFY(rig.core->prompts.questions.isEmpty());
}

void TestMainWindow::closingAsksAndStays()
{
    WindowRig rig;
    rig.show();
    rig.core->w.form.setText(Control::txtOggetto, u"News"_s);
    rig.core->prompts.expectAnswer(Topic::SaveBeforeExit, Answer::Cancel);
    rig.window->close();
    rig.core->prompts.answerAll();
    QCOMPARE(rig.endings, 0);
    QVERIFY(rig.window->isVisible());
}

void TestMainWindow::closingEndsTheProcessAndKeepsTheWindowsSize()
{
    WindowRig rig;
    rig.show();
    rig.window->resize(1000, 690);
    rig.window->close();
    QCOMPARE(rig.endings, 1);
    const QByteArray kept = WorkspaceRig::contentOf(rig.core->folder.filePath(u"window.ini"_s));
    QVERIFY(kept.contains("geometry="));
    QVERIFY(kept.contains("columns="));
}

void TestMainWindow::runIsCountedOnTheBar()
{
    WindowRig rig;
    rig.show();
    rig.core->fillForm(4);
    rig.core->uncheck(2);
    auto &bar = rig.get<QProgressBar>("progress");
    QCOMPARE(bar.text(), QString());
    rig.core->startSending();
    QTRY_COMPARE(bar.text(), u"0 / 3"_s);
    rig.core->finishMessage();
    QTRY_COMPARE(bar.text(), u"1 / 3"_s);
    QCOMPARE(bar.maximum(), 3);
    QCOMPARE(bar.value(), 1);
}

void TestMainWindow::barKeepsWhatTheLastRunReached()
{
    WindowRig rig;
    rig.show();
    rig.core->fillForm(2);
    rig.core->startSending();
    rig.core->finishMessage();
    rig.core->finishMessage();
    QCOMPARE(rig.core->w.form.runState(), RunState::Idle);
    QTRY_COMPARE(rig.get<QProgressBar>("progress").text(), u"2 / 2"_s);
    rig.core->w.form.setProjectModified(false);
    rig.get<QPushButton>("cmdNuovo").click();
    QTRY_COMPARE(rig.get<QProgressBar>("progress").text(), QString());
    QCOMPARE(rig.get<QProgressBar>("progress").value(), 0);
}

void TestMainWindow::pauseButtonShowsWhatItWouldDo_data()
{
    addLanguages();
}

void TestMainWindow::pauseButtonShowsWhatItWouldDo()
{
    QFETCH(Language, language);
    const bool isItalian = language == Language::Italian;
    WindowRig rig(language);
    rig.show();
    rig.core->fillForm(2);
    rig.core->start();
    auto &button = rig.get<QPushButton>("cmdPausa");
    QCOMPARE(button.text(), isItalian ? u"Pausa"_s : u"Pause"_s);
    const qint64 pausePicture = button.icon().cacheKey();
    button.click();
    QCOMPARE(button.text(), isItalian ? u"Riprendi"_s : u"Resume"_s);
    QVERIFY(button.icon().cacheKey() != pausePicture);
    QVERIFY(rig.get<QPushButton>("cmdSave").isEnabled());
    button.click();
    QCOMPARE(button.text(), isItalian ? u"Pausa"_s : u"Pause"_s);
}
