#include "TestWindowPrompts.h"

#include "base/Language.h"
#include "support/DiskFiles.h"
#include "support/ItalianTexts.h"
#include "ui/FileBox.h"
#include "ui/WindowPrompts.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QTranslator>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize SmallScreen(1366, 768);

bool always()
{
    return true;
}

/// A window and its boxes. The window is shown and known when a test begins.
struct Rig
{
    Rig()
    {
        prompts.setDialogs(WindowPrompts::Dialogs::QtOwn);
        prompts.setWindow(&window);
        window.show();
        QCoreApplication::processEvents();
    }

    /// The shown box of that name, or none.
    template <typename Box = QDialog>
    [[nodiscard]] Box *shown(const QString &name) const
    {
        for (Box *box : window.findChildren<Box *>(name)) {
            if (box->isVisible())
                return box;
        }
        return nullptr;
    }

    [[nodiscard]] QMessageBox *notice() const { return shown<QMessageBox>(u"notice"_s); }
    [[nodiscard]] QMessageBox *question() const { return shown<QMessageBox>(u"question"_s); }
    [[nodiscard]] QInputDialog *inputBox() const { return shown<QInputDialog>(u"inputBox"_s); }
    [[nodiscard]] QFileDialog *fileDialog() const { return shown<QFileDialog>(u"fileDialog"_s); }

    [[nodiscard]] QString noticeText() const
    {
        return notice() == nullptr ? QString() : notice()->text();
    }

    /// Asks for something with a box of that name; answers are counted.
    void askWith(const QString &name, const Stands &stands = always)
    {
        if (name == "question"_L1)
            prompts.ask({}, stands, [this](Answer) { ++answers; });
        else if (name == "inputBox"_L1)
            prompts.askText({}, stands, [this](const QString &) { ++answers; });
        else
            prompts.askFile({}, stands, [this](const QString &) { ++answers; });
    }

    /// Asks for a file and keeps the answer.
    QFileDialog *askFile(const FileDialog &dialog)
    {
        answer.clear();
        prompts.askFile(dialog, always, [this](const QString &name) {
            answer = name;
            ++answers;
        });
        return fileDialog();
    }

    QWidget window;
    WindowPrompts prompts;
    int answers = 0;
    QString answer;
};

/// A key for the widget that has the focus in that window.
void press(const QWidget *window, Qt::Key key)
{
    QTest::keyClick(window->windowHandle(), key);
}

void type(const QWidget *window, const QString &text)
{
    for (const QChar c : text)
        QTest::keyClick(window->windowHandle(), c.toLatin1());
}

void click(const QMessageBox *box, QMessageBox::StandardButton button)
{
    QTest::mouseClick(box->button(button), Qt::LeftButton);
}

Notice noticeOf(const QString &text)
{
    return {Icon::Information, u"Recipients"_s, text};
}

Question questionWith(Buttons buttons)
{
    return {Topic::StopProcedure, Icon::Exclamation, buttons, u"Stop"_s, u"Stop it?"_s};
}

/// A row for every box that has an answer.
void addBoxesWithAnAnswer()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"question", "inputBox", "fileDialog"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

FileDialog openText()
{
    FileDialog dialog;
    dialog.title = u"Select recipients file:"_s;
    dialog.filter = u"Text file (*.txt)|*.txt|All files (*.*)|*.*"_s;
    dialog.defaultExtension = u"txt"_s;
    return dialog;
}

FileDialog saveProject()
{
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::Save;
    dialog.title = u"Select the file to save:"_s;
    dialog.filter = u"Sorvanta File (*.svk)|*.svk"_s;
    dialog.defaultExtension = u"svk"_s;
    dialog.asksBeforeOverwriting = true;
    return dialog;
}

/// The names that a dialog of Qt lists.
QStringList listedNames(const QFileDialog *dialog)
{
    const auto *view = dialog->findChild<QListView *>(u"listView"_s);
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
        names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
    names.sort();
    return names;
}

/// Gives a dialog of Qt a path in one go; it looks around while somebody types one.
void enter(const QFileDialog *dialog, const QString &path)
{
    dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
    press(dialog, Qt::Key_Return);
}

/// The question that a dialog of Qt asks by itself, or none.
QMessageBox *innerQuestion(const QFileDialog *dialog)
{
    return dialog->findChild<QMessageBox *>();
}

QString rejectedRecipients(int count)
{
    QString text = u"These recipients couldn't be added:\r\n"_s;
    for (int i = 1; i <= count; ++i)
        text += u"Recipient %1 - nobody.%1.example.org\r\n"_s.arg(i);
    return text;
}

} // namespace

void TestWindowPrompts::initTestCase()
{
    // The folders of this user, and the settings that Qt's file dialog keeps.
    m_formerHome = qgetenv("HOME");
    m_formerConfig = qgetenv("XDG_CONFIG_HOME");
    QVERIFY(m_home.isValid());
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", m_home.filePath(u"config"_s).toLocal8Bit());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.filePath(u"qt"_s));
    QVERIFY(QDir(m_home.path()).mkpath(u"config"_s));
    m_documents = m_home.filePath(u"Papers"_s);
    QVERIFY(QDir(m_home.path()).mkpath(m_documents));
    writeFile(m_home.filePath(u"config/user-dirs.dirs"_s), "XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
}

void TestWindowPrompts::cleanupTestCase()
{
    qputenv("HOME", m_formerHome);
    if (m_formerConfig.isNull())
        qunsetenv("XDG_CONFIG_HOME");
    else
        qputenv("XDG_CONFIG_HOME", m_formerConfig);
}

void TestWindowPrompts::noticesAreShownOneAtATimeInOrder()
{
    Rig rig;
    for (const QString &text : {u"one"_s, u"two"_s, u"three"_s})
        rig.prompts.notice(noticeOf(text));
    for (const QString &text : {u"one"_s, u"two"_s, u"three"_s}) {
        QTRY_COMPARE(rig.noticeText(), text);
        QCOMPARE(rig.window.findChildren<QMessageBox *>(u"notice"_s).count(), 1);
        press(rig.notice(), Qt::Key_Return);
    }
    QTRY_VERIFY(rig.window.findChildren<QDialog *>().isEmpty());
}

void TestWindowPrompts::aBoxWithAnAnswerWaitsForTheNoticesBeforeIt_data()
{
    addBoxesWithAnAnswer();
}

void TestWindowPrompts::aBoxWithAnAnswerWaitsForTheNoticesBeforeIt()
{
    QFETCH(QString, name);
    Rig rig;
    rig.prompts.notice(noticeOf(u"one"_s));
    rig.prompts.notice(noticeOf(u"two"_s));
    rig.askWith(name);
    for (const QString &text : {u"one"_s, u"two"_s}) {
        QTRY_COMPARE(rig.noticeText(), text);
        QVERIFY(!rig.shown(name));
        press(rig.notice(), Qt::Key_Return);
    }
    QTRY_VERIFY(rig.shown(name));
    QVERIFY(!rig.notice());
}

void TestWindowPrompts::aNoticeShowsAboveAnOpenBox_data()
{
    addBoxesWithAnAnswer();
}

void TestWindowPrompts::aNoticeShowsAboveAnOpenBox()
{
    QFETCH(QString, name);
    Rig rig;
    rig.askWith(name);
    QTRY_VERIFY(rig.shown(name));
    rig.prompts.notice(noticeOf(u"the run has ended"_s));
    QTRY_VERIFY(rig.notice());
    QVERIFY(rig.shown(name));
    // The notice has the keys, also when they are meant for the box below.
    press(rig.shown(name), Qt::Key_Return);
    QVERIFY(rig.shown(name));
    press(rig.notice(), Qt::Key_Return);
    QTRY_VERIFY(!rig.notice());
    QTRY_COMPARE(QApplication::activeWindow(), rig.shown(name));
    QCOMPARE(rig.answers, 0);
}

void TestWindowPrompts::aNoticeBehindAWaitingQuestionShowsTogetherWithIt()
{
    Rig rig;
    rig.prompts.notice(noticeOf(u"one"_s));
    rig.prompts.ask(questionWith(Buttons::YesNo), always, [](Answer) {});
    rig.prompts.notice(noticeOf(u"two"_s));
    QTRY_COMPARE(rig.noticeText(), u"one"_s);
    QVERIFY(!rig.question());
    press(rig.notice(), Qt::Key_Return);
    QTRY_COMPARE(rig.noticeText(), u"two"_s);
    QVERIFY(rig.question());
}

void TestWindowPrompts::twoQuestionsAreOpenTogether()
{
    Rig rig;
    QStringList answered;
    rig.prompts.ask(questionWith(Buttons::YesNo), always,
                    [&answered](Answer) { answered.append(u"question"_s); });
    rig.prompts.askText({u"New recipient"_s, u"Name:"_s}, always,
                        [&answered](const QString &text) { answered.append(text); });
    QTRY_VERIFY(rig.question());
    QTRY_VERIFY(rig.inputBox());
    // The one that came last is in front.
    type(rig.inputBox(), u"Ada"_s);
    press(rig.inputBox(), Qt::Key_Return);
    QTRY_COMPARE(answered, QStringList({u"Ada"_s}));
    press(rig.question(), Qt::Key_Return);
    QTRY_COMPARE(answered, QStringList({u"Ada"_s, u"question"_s}));
}

void TestWindowPrompts::boxesWaitForTheWindowAndTheEventLoop()
{
    WindowPrompts prompts;
    prompts.notice(noticeOf(u"early"_s));
    QCoreApplication::processEvents();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());

    QWidget window;
    prompts.setWindow(&window);
    prompts.notice(noticeOf(u"a little later"_s));
    QVERIFY(window.findChildren<QDialog *>().isEmpty());

    window.show();
    QTRY_VERIFY(window.findChild<QMessageBox *>(u"notice"_s));
    QCOMPARE(window.findChild<QMessageBox *>(u"notice"_s)->text(), u"early"_s);
}

void TestWindowPrompts::everyBoxIsModalForItsWindowAndDeletesItself_data()
{
    addBoxesWithAnAnswer();
    QTest::newRow("notice") << u"notice"_s;
}

void TestWindowPrompts::everyBoxIsModalForItsWindowAndDeletesItself()
{
    QFETCH(QString, name);
    Rig rig;
    if (name == "notice"_L1)
        rig.prompts.notice({});
    else
        rig.askWith(name);
    QTRY_VERIFY(rig.shown(name));
    const QPointer<QDialog> box = rig.shown(name);
    QCOMPARE(box->windowModality(), Qt::WindowModal);
    QCOMPARE(box->parentWidget(), &rig.window);
    // "question" has no button for leaving the decision open.
    press(box, name == "question"_L1 ? Qt::Key_Return : Qt::Key_Escape);
    QTRY_VERIFY(!box);
}

void TestWindowPrompts::theAnswerIsPosted_data()
{
    addBoxesWithAnAnswer();
}

void TestWindowPrompts::theAnswerIsPosted()
{
    QFETCH(QString, name);
    Rig rig;
    rig.askWith(name);
    QTRY_VERIFY(rig.shown(name));
    rig.shown(name)->reject();
    QVERIFY(!rig.shown(name));
    QCOMPARE(rig.answers, 0);
    QTRY_COMPARE(rig.answers, 1);
}

void TestWindowPrompts::aContinuationMayAskAgain()
{
    Rig rig;
    QStringList typed;
    const InputBox box{u"New recipient"_s, u"E-mail address:"_s};
    std::function<void(QString)> check = [&](const QString &text) {
        typed.append(text);
        if (text.contains(u'@'))
            return;
        rig.prompts.notice(noticeOf(text + u" isn't valid"_s));
        rig.prompts.askText(box, always, check);
    };
    rig.prompts.askText(box, always, check);
    QTRY_VERIFY(rig.inputBox());
    type(rig.inputBox(), u"ada"_s);
    press(rig.inputBox(), Qt::Key_Return);
    QTRY_COMPARE(rig.noticeText(), u"ada isn't valid"_s);
    QVERIFY(!rig.inputBox());
    press(rig.notice(), Qt::Key_Return);
    QTRY_VERIFY(rig.inputBox());
    QCOMPARE(rig.inputBox()->textValue(), QString());
    type(rig.inputBox(), u"ada@example.org"_s);
    press(rig.inputBox(), Qt::Key_Return);
    QTRY_COMPARE(typed, QStringList({u"ada"_s, u"ada@example.org"_s}));
    QVERIFY(!rig.inputBox());
}

void TestWindowPrompts::anAnswerThatNoLongerCountsIsDropped()
{
    Rig rig;
    bool stands = true;
    rig.askWith(u"question"_s, [&stands] { return stands; });
    QTRY_VERIFY(rig.question());
    rig.question()->button(QMessageBox::Yes)->click();
    stands = false;
    QTRY_VERIFY(rig.window.findChildren<QDialog *>().isEmpty());
    QCOMPARE(rig.answers, 0);
}

void TestWindowPrompts::aStaleBoxClosesWithoutAnAnswer_data()
{
    addBoxesWithAnAnswer();
}

void TestWindowPrompts::aStaleBoxClosesWithoutAnAnswer()
{
    QFETCH(QString, name);
    Rig rig;
    bool stands = true;
    rig.askWith(name, [&stands] { return stands; });
    QTRY_VERIFY(rig.shown(name));
    QDialog *box = rig.shown(name);
    stands = false;
    rig.prompts.closeStale();
    QVERIFY(!rig.shown(name));
    stands = true;
    // A desktop's dialog may still say something when it is closed.
    box->reject();
    QTRY_VERIFY(rig.window.findChildren<QDialog *>().isEmpty());
    QCOMPARE(rig.answers, 0);
    QVERIFY(!QApplication::activeModalWidget());
}

void TestWindowPrompts::aStaleWaitingBoxNeverOpens_data()
{
    addBoxesWithAnAnswer();
}

void TestWindowPrompts::aStaleWaitingBoxNeverOpens()
{
    QFETCH(QString, name);
    Rig rig;
    bool stands = true;
    rig.prompts.notice(noticeOf(u"one"_s));
    rig.askWith(name, [&stands] { return stands; });
    stands = false;
    rig.prompts.closeStale();
    stands = true;
    QTRY_VERIFY(rig.notice());
    press(rig.notice(), Qt::Key_Return);
    QTRY_VERIFY(rig.window.findChildren<QDialog *>().isEmpty());
    QCOMPARE(rig.answers, 0);
}

void TestWindowPrompts::aBoxThatIsStaleInItsTurnNeverOpens()
{
    Rig rig;
    bool stands = true;
    rig.prompts.notice(noticeOf(u"one"_s));
    rig.askWith(u"question"_s, [&stands] { return stands; });
    stands = false;
    press(rig.notice(), Qt::Key_Return);
    QTRY_VERIFY(rig.window.findChildren<QDialog *>().isEmpty());
    QCOMPARE(rig.answers, 0);
}

void TestWindowPrompts::aBoxThatStandsStaysOpen()
{
    Rig rig;
    for (const QString &name : {u"question"_s, u"inputBox"_s, u"fileDialog"_s})
        rig.askWith(name);
    rig.prompts.notice({});
    QTRY_VERIFY(rig.notice());
    rig.prompts.closeStale();
    QCoreApplication::processEvents();
    for (const QString &name : {u"question"_s, u"inputBox"_s, u"fileDialog"_s, u"notice"_s})
        QVERIFY2(rig.shown(name), qPrintable(name));
}

void TestWindowPrompts::theBoxBelowAStaleOneHasTheKeys()
{
    Rig rig;
    bool stands = true;
    rig.askWith(u"question"_s);
    rig.askWith(u"inputBox"_s, [&stands] { return stands; });
    QTRY_COMPARE(QApplication::activeWindow(), rig.inputBox());
    stands = false;
    rig.prompts.closeStale();
    QTRY_COMPARE(QApplication::activeWindow(), rig.question());
}

void TestWindowPrompts::boxesOpenOverADialogThatBlocksTheWindow_data()
{
    addBoxesWithAnAnswer();
}

void TestWindowPrompts::boxesOpenOverADialogThatBlocksTheWindow()
{
    QFETCH(const QString, name);
    Rig rig;
    QDialog outer(&rig.window);
    outer.open();
    QDialog inner(&outer);
    inner.open();
    rig.askWith(name);
    QVERIFY(rig.shown(name));
    QCOMPARE(rig.shown(name)->parentWidget(), &inner);
    // Boxes are no such dialogs: what one asks outlives another.
    rig.prompts.notice(noticeOf(u"first"_s));
    QCOMPARE(rig.notice()->parentWidget(), &inner);
    rig.notice()->close();
    rig.shown(name)->reject();
    inner.hide();
    outer.hide();
    rig.askWith(name);
    QCOMPARE(rig.shown(name)->parentWidget(), &rig.window);
}

void TestWindowPrompts::boxesOpenOverTheWindowWhenADialogBlocksNothing()
{
    Rig rig;
    QDialog beside(&rig.window);
    beside.show();
    rig.prompts.notice(noticeOf(u"first"_s));
    QCOMPARE(rig.notice()->parentWidget(), &rig.window);
    rig.notice()->close();
    QDialog blocking(&rig.window);
    blocking.open();
    rig.prompts.askLogin({}, always, [](const std::optional<LoginEntry> &) {});
    QVERIFY(rig.shown(u"frmAccesso"_s));
    QCOMPARE(rig.shown(u"frmAccesso"_s)->parentWidget(), &rig.window);
}

void TestWindowPrompts::boxesGoAwayWithTheirWindow()
{
    WindowPrompts prompts;
    prompts.setDialogs(WindowPrompts::Dialogs::QtOwn);
    int answers = 0;
    const auto count = [&answers](const auto &) { ++answers; };
    {
        QWidget window;
        prompts.setWindow(&window);
        prompts.ask({}, always, count);
        prompts.askText({}, always, count);
        prompts.askFile({}, always, count);
        prompts.notice({});
        prompts.ask({}, always, count);
        window.show();
        QTRY_COMPARE(window.findChildren<QDialog *>(QString(), Qt::FindDirectChildrenOnly).size(),
                     4);
    }
    prompts.closeStale();
    QCoreApplication::processEvents();
    QCOMPARE(answers, 0);

    // What was waiting opens over the next one.
    QWidget next;
    prompts.setWindow(&next);
    next.show();
    QTRY_VERIFY(next.findChild<QMessageBox *>(u"question"_s));
}

void TestWindowPrompts::boxesGoAwayWithThePrompts()
{
    QWidget window;
    window.show();
    int answers = 0;
    {
        WindowPrompts prompts;
        prompts.setWindow(&window);
        prompts.ask({}, always, [&answers](Answer) { ++answers; });
        prompts.notice({});
        QTRY_VERIFY(window.findChild<QMessageBox *>(u"notice"_s));
    }
    QTRY_VERIFY(window.findChildren<QDialog *>().isEmpty());
    QCOMPARE(answers, 0);
}

void TestWindowPrompts::aNoticeShowsItsValues_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("shown");
    QTest::newRow("none") << int(Icon::None) << int{QMessageBox::NoIcon};
    QTest::newRow("information") << int(Icon::Information) << int{QMessageBox::Information};
    QTest::newRow("exclamation") << int(Icon::Exclamation) << int{QMessageBox::Warning};
    QTest::newRow("critical") << int(Icon::Critical) << int{QMessageBox::Critical};
}

void TestWindowPrompts::aNoticeShowsItsValues()
{
    QFETCH(int, icon);
    QFETCH(int, shown);
    Rig rig;
    const QString text = u"<b>Ada</b> & 'ada@'\r\nisn't valid."_s;
    rig.prompts.notice({static_cast<Icon>(icon), u"New recipient"_s, text});
    QTRY_VERIFY(rig.notice());
    QCOMPARE(int{rig.notice()->icon()}, shown);
    QCOMPARE(rig.notice()->windowTitle(), u"New recipient"_s);
    QCOMPARE(rig.notice()->text(), text);
    QCOMPARE(rig.notice()->property("fullText").toString(), text);
    QCOMPARE(rig.notice()->textFormat(), Qt::PlainText);
    QCOMPARE(int{rig.notice()->standardButtons()}, int{QMessageBox::Ok});
    QVERIFY(!rig.notice()->findChild<QPlainTextEdit *>());
}

void TestWindowPrompts::theDetailIsShownPlain()
{
    Rig rig;
    Notice notice = noticeOf(u"Unable to load the specified message!"_s);
    notice.detail = u"/home/ada/<b>x</b>.txt: the file does not exist"_s;
    rig.prompts.notice(notice);
    QTRY_VERIFY(rig.notice());
    QCOMPARE(rig.notice()->text(), notice.text);
    QCOMPARE(rig.notice()->informativeText(), notice.detail);
    bool isShown = false;
    for (const QLabel *label : rig.notice()->findChildren<QLabel *>()) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
        isShown = isShown || (label->text() == notice.detail && label->isVisible());
    }
    QVERIFY(isShown);
}

void TestWindowPrompts::theTitleIsTheProgramsNameWhenThereIsNone()
{
    Rig rig;
    rig.prompts.notice({Icon::None, {}, u"Hello"_s});
    rig.prompts.ask({}, always, [](Answer) {});
    QTRY_VERIFY(rig.notice());
    QCOMPARE(rig.notice()->windowTitle(), u"Sorvanta"_s);
    press(rig.notice(), Qt::Key_Return);
    QTRY_VERIFY(rig.question());
    QCOMPARE(rig.question()->windowTitle(), u"Sorvanta"_s);
}

void TestWindowPrompts::keysAnswerQuestions_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("answer");
    constexpr int Nothing = -1;
    const auto row = [](const char *name, Buttons buttons, const QList<int> &keys, int answer) {
        QTest::newRow(name) << static_cast<int>(buttons) << keys << answer;
    };
    row("Yes/No: Enter", Buttons::YesNo, {Qt::Key_Return}, int(Answer::Yes));
    row("Yes/No: the other Enter", Buttons::YesNo, {Qt::Key_Enter}, int(Answer::Yes));
    row("Yes/No: Esc", Buttons::YesNo, {Qt::Key_Escape}, Nothing);
    row("Yes/No: to the next button", Buttons::YesNo, {Qt::Key_Tab, Qt::Key_Space},
        int(Answer::No));
    row("Yes/No: letter", Buttons::YesNo, {Qt::Key_N}, int(Answer::No));
    row("Yes/No/Cancel: Enter", Buttons::YesNoCancel, {Qt::Key_Return}, int(Answer::Yes));
    row("Yes/No/Cancel: Esc", Buttons::YesNoCancel, {Qt::Key_Escape}, int(Answer::Cancel));
    row("Yes/No/Cancel: letter", Buttons::YesNoCancel, {Qt::Key_N}, int(Answer::No));
    row("OK/Cancel: Enter", Buttons::OkCancel, {Qt::Key_Return}, int(Answer::Ok));
    row("OK/Cancel: Esc", Buttons::OkCancel, {Qt::Key_Escape}, int(Answer::Cancel));
    const auto goOn = Buttons::ContinueOpenForget;
    row("Continue/Open/Forget: Enter", goOn, {Qt::Key_Return}, int(Answer::Continue));
    row("Continue/Open/Forget: Esc", goOn, {Qt::Key_Escape}, int(Answer::Cancel));
    row("Continue/Open/Forget: first letter", goOn, {Qt::Key_C}, int(Answer::Continue));
    row("Continue/Open/Forget: second letter", goOn, {Qt::Key_O}, int(Answer::OpenAsItIs));
    row("Continue/Open/Forget: third letter", goOn, {Qt::Key_F}, int(Answer::Forget));
    row("Open/Forget: Enter", Buttons::OpenForget, {Qt::Key_Return}, int(Answer::OpenAsItIs));
    row("Open/Forget: Esc", Buttons::OpenForget, {Qt::Key_Escape}, int(Answer::Cancel));
    row("Open/Forget: first letter", Buttons::OpenForget, {Qt::Key_O}, int(Answer::OpenAsItIs));
    row("Open/Forget: second letter", Buttons::OpenForget, {Qt::Key_F}, int(Answer::Forget));
    row("Open/Forget: no such letter", Buttons::OpenForget, {Qt::Key_C}, Nothing);
}

void TestWindowPrompts::keysAnswerQuestions()
{
    QFETCH(int, buttons);
    QFETCH(QList<int>, keys);
    QFETCH(int, answer);
    Rig rig;
    int answered = -1;
    rig.prompts.ask(questionWith(static_cast<Buttons>(buttons)), always,
                    [&answered](Answer given) { answered = static_cast<int>(given); });
    QTRY_VERIFY(rig.question());
    QCOMPARE(rig.question()->icon(), QMessageBox::Warning);
    QCOMPARE(rig.question()->windowTitle(), u"Stop"_s);
    QCOMPARE(rig.question()->text(), u"Stop it?"_s);
    for (const int key : keys)
        press(rig.question(), static_cast<Qt::Key>(key));
    QCoreApplication::processEvents();
    if (answer == -1)
        QVERIFY(rig.question());
    QTRY_COMPARE(answered, answer);
}

void TestWindowPrompts::whatToDoWithALeftRunHasButtonsOfItsOwn_data()
{
    QTest::addColumn<Language>("language");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QStringList>("captions");
    const QStringList english{u"&Continue"_s, u"&Open as it is"_s, u"&Forget"_s};
    const QStringList italian{u"&Continua"_s, u"&Apri com'è"_s, u"&Dimentica"_s};
    const auto row = [](const char *name, Language language, Buttons buttons,
                        const QStringList &captions) {
        QTest::newRow(name) << language << int(buttons) << captions;
    };
    row("to go on with", Language::English, Buttons::ContinueOpenForget, english);
    row("nothing to go on with", Language::English, Buttons::OpenForget, english.mid(1));
    row("to go on with, Italian", Language::Italian, Buttons::ContinueOpenForget, italian);
    row("nothing to go on with, Italian", Language::Italian, Buttons::OpenForget, italian.mid(1));
}

// The same order as they are given in, the first one is Enter's, and Tab visits them in it.
void TestWindowPrompts::whatToDoWithALeftRunHasButtonsOfItsOwn()
{
    QFETCH(Language, language);
    QFETCH(int, buttons);
    QFETCH(QStringList, captions);
    std::optional<ItalianTexts> texts;
    if (language == Language::Italian)
        texts.emplace();
    Rig rig;
    rig.prompts.ask(questionWith(static_cast<Buttons>(buttons)), always, [](Answer) {});
    QTRY_VERIFY(rig.question());
    QMap<int, QString> fromLeft;
    for (const QAbstractButton *button : rig.question()->buttons())
        fromLeft.insert(button->mapTo(rig.question(), QPoint()).x(), button->text());
    QCOMPARE(fromLeft.values(), captions);
    QCOMPARE(rig.question()->defaultButton()->text(), captions.front());
    QTRY_VERIFY(rig.question()->defaultButton()->hasFocus());
}

void TestWindowPrompts::enterDeclinesWhatNobodyShouldAgreeToUnread()
{
    Rig rig;
    Question question = questionWith(Buttons::YesNo);
    question.enterIsNo = true;
    std::optional<Answer> answered;
    rig.prompts.ask(question, always, [&answered](Answer given) { answered = given; });
    QTRY_VERIFY(rig.question());
    press(rig.question(), Qt::Key_Return);
    QTRY_COMPARE(answered, Answer::No);
}

void TestWindowPrompts::closingAnswersCancelOrNothing_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes/No") << int(Buttons::YesNo) << -1;
    QTest::newRow("Yes/No/Cancel") << int(Buttons::YesNoCancel) << int(Answer::Cancel);
    QTest::newRow("OK/Cancel") << int(Buttons::OkCancel) << int(Answer::Cancel);
    QTest::newRow("Continue/Open/Forget")
        << int(Buttons::ContinueOpenForget) << int(Answer::Cancel);
    QTest::newRow("Open/Forget") << int(Buttons::OpenForget) << int(Answer::Cancel);
}

void TestWindowPrompts::closingAnswersCancelOrNothing()
{
    QFETCH(int, buttons);
    QFETCH(int, answer);
    Rig rig;
    int answered = -1;
    rig.prompts.ask(questionWith(static_cast<Buttons>(buttons)), always,
                    [&answered](Answer given) { answered = static_cast<int>(given); });
    QTRY_VERIFY(rig.question());
    QCOMPARE(rig.question()->close(), answer != -1);
    QCOMPARE(rig.question() != nullptr, answer == -1);
    QCoreApplication::processEvents();
    QCOMPARE(answered, answer);
}

void TestWindowPrompts::aNoticeCanBeDismissed_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int{Qt::Key_Return};
    QTest::newRow("Esc") << int{Qt::Key_Escape};
    QTest::newRow("Space") << int{Qt::Key_Space};
    QTest::newRow("title bar") << 0;
}

void TestWindowPrompts::aNoticeCanBeDismissed()
{
    QFETCH(int, key);
    Rig rig;
    rig.prompts.notice(noticeOf(u"one"_s));
    QTRY_VERIFY(rig.notice());
    if (key == 0)
        QVERIFY(rig.notice()->close());
    else
        press(rig.notice(), static_cast<Qt::Key>(key));
    QTRY_VERIFY(rig.window.findChildren<QDialog *>().isEmpty());
}

void TestWindowPrompts::aLongListScrollsAndTheBoxFits()
{
    Rig rig;
    const QString text = rejectedRecipients(3000);
    rig.prompts.notice({Icon::Exclamation, u"Sorvanta"_s, text});
    QTRY_VERIFY(rig.notice());
    const QMessageBox *box = rig.notice();
    QCOMPARE(box->text(), u"These recipients couldn't be added:"_s);
    QCOMPARE(box->property("fullText").toString(), text);
    const auto *list = box->findChild<QPlainTextEdit *>();
    QVERIFY(list && list->isVisible() && list->isReadOnly());
    const QString shown = box->text() + u'\n' + list->toPlainText();
    QCOMPARE(shown, QString(text).replace("\r\n"_L1, "\n"_L1));
    QVERIFY(list->verticalScrollBar()->maximum() > 0);
    QVERIFY2(box->width() < SmallScreen.width() && box->height() < SmallScreen.height() * 3 / 4,
             qPrintable(u"%1 x %2"_s.arg(box->width()).arg(box->height())));
    // Below the text, above the button, and inside.
    const QAbstractButton *button = box->button(QMessageBox::Ok);
    QVERIFY(button->mapTo(box, QPoint()).y() > list->geometry().bottom());
    QVERIFY(box->rect().contains(list->geometry()));
    QVERIFY(box->rect().contains(QRect(button->mapTo(box, QPoint()), button->size())));
}

void TestWindowPrompts::theListCanBeReachedScrolledAndLeftByKeys()
{
    Rig rig;
    rig.prompts.notice({Icon::None, u"Sorvanta"_s, rejectedRecipients(100)});
    QTRY_VERIFY(rig.notice());
    const QMessageBox *box = rig.notice();
    auto *list = box->findChild<QPlainTextEdit *>();
    const auto *accessible = QAccessible::queryAccessibleInterface(list);
    QCOMPARE(accessible->text(QAccessible::Name), u"These recipients couldn't be added:"_s);

    QCOMPARE(box->focusWidget(), box->button(QMessageBox::Ok));
    press(box, Qt::Key_Tab);
    QCOMPARE(box->focusWidget(), list);
    press(box, Qt::Key_PageDown);
    QVERIFY(list->verticalScrollBar()->value() > 0);
    QTest::keyClick(box->windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(list->textCursor().selectedText().size(), list->toPlainText().size());
    press(box, Qt::Key_Tab);
    QCOMPARE(box->focusWidget(), box->button(QMessageBox::Ok));
    press(box, Qt::Key_Tab);
    press(box, Qt::Key_Return);
    QTRY_VERIFY(!rig.notice());
}

void TestWindowPrompts::aListSurvivesAChangeOfStyle()
{
    Rig rig;
    rig.prompts.notice({Icon::Exclamation, u"Sorvanta"_s, rejectedRecipients(100)});
    QTRY_VERIFY(rig.notice());
    const QMessageBox *box = rig.notice();
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(rig.notice(), &change);
    QCoreApplication::processEvents();
    const auto *list = box->findChild<QPlainTextEdit *>();
    QVERIFY(list->isVisible());
    QVERIFY(box->layout()->indexOf(list) >= 0);
    QVERIFY(box->button(QMessageBox::Ok)->mapTo(box, QPoint()).y() > list->geometry().bottom());
}

void TestWindowPrompts::aShortListIsShownWhole()
{
    Rig rig;
    rig.prompts.notice({Icon::None, u"Sorvanta"_s, rejectedRecipients(3)});
    QTRY_VERIFY(rig.notice());
    QCOMPARE(rig.notice()->text(), rejectedRecipients(3));
    QVERIFY(!rig.notice()->findChild<QPlainTextEdit *>());
}

void TestWindowPrompts::anEndlessLineWraps_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a word") << QString(500, u'x');
    QTest::newRow("an endless word") << QString(100000, u'x');
    QTest::newRow("a page") << u"To be or not to be. "_s.repeated(200);
    QTest::newRow("many words") << u"To be or not to be. "_s.repeated(5000);
    QTest::newRow("under a heading") << u"These:\r\n"_s + QString(500, u'x');
}

void TestWindowPrompts::anEndlessLineWraps()
{
    QFETCH(QString, text);
    Rig rig;
    rig.prompts.notice({Icon::Critical, u"Sorvanta"_s, text});
    QTRY_VERIFY(rig.notice());
    const QMessageBox *box = rig.notice();
    const auto *shown = box->findChild<QPlainTextEdit *>();
    QVERIFY(shown);
    QVERIFY(text.endsWith(shown->toPlainText()));
    QCOMPARE(shown->horizontalScrollBar()->maximum(), 0);
    QVERIFY2(box->width() < SmallScreen.width() && box->height() < SmallScreen.height() * 3 / 4,
             qPrintable(u"%1 x %2"_s.arg(box->width()).arg(box->height())));
    QCOMPARE(box->property("fullText").toString(), text);
}

void TestWindowPrompts::anEndlessDetailIsScrolled()
{
    Rig rig;
    Notice notice = noticeOf(u"Unable to load the specified message!"_s);
    notice.detail = u"/home/ada/"_s + QString(250, u'x') + u".txt: the file does not exist"_s;
    rig.prompts.notice(notice);
    QTRY_VERIFY(rig.notice());
    QCOMPARE(rig.notice()->text(), notice.text);
    const auto *shown = rig.notice()->findChild<QPlainTextEdit *>();
    QVERIFY(shown);
    QCOMPARE(shown->toPlainText(), notice.detail);
    QVERIFY(rig.notice()->width() < SmallScreen.width() * 3 / 4);
}

void TestWindowPrompts::qtsButtonsSpeakItalian()
{
    QTranslator qt;
    QVERIFY(qt.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    QCoreApplication::installTranslator(&qt);
    Rig rig;
    rig.prompts.ask(questionWith(Buttons::YesNoCancel), always, [](Answer) {});
    rig.prompts.notice({});
    QTRY_VERIFY(rig.notice());
    const auto text = [](const QMessageBox *box, QMessageBox::StandardButton button) {
        return box->button(button)->text().remove(u'&');
    };
    QCOMPARE(text(rig.question(), QMessageBox::Yes), u"Sì"_s);
    QCOMPARE(text(rig.question(), QMessageBox::No), u"No"_s);
    QCOMPARE(text(rig.question(), QMessageBox::Cancel), u"Annulla"_s);
    QCOMPARE(text(rig.notice(), QMessageBox::Ok), u"OK"_s);
}

void TestWindowPrompts::keysAnswerAnInputBox_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("answer");
    QTest::newRow("Enter") << u"Ada <b>"_s << int{Qt::Key_Return} << u"Ada <b>"_s;
    QTest::newRow("nothing typed") << QString() << int{Qt::Key_Return} << QString();
    QTest::newRow("Esc") << u"Ada"_s << int{Qt::Key_Escape} << QString();
    QTest::newRow("title bar") << u"Ada"_s << 0 << QString();
}

void TestWindowPrompts::keysAnswerAnInputBox()
{
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(QString, answer);
    Rig rig;
    QStringList answers;
    rig.prompts.askText({u"New recipient"_s, u"Name:"_s}, always,
                        [&answers](const QString &text) { answers.append(text); });
    QTRY_VERIFY(rig.inputBox());
    type(rig.inputBox(), typed);
    if (key == 0)
        QVERIFY(rig.inputBox()->close());
    else
        press(rig.inputBox(), static_cast<Qt::Key>(key));
    QTRY_COMPARE(answers, QStringList({answer}));
}

void TestWindowPrompts::linesPastedIntoAnInputBoxBecomeOne()
{
    Rig rig;
    QStringList answers;
    rig.prompts.askText({u"New recipient"_s, u"Name:"_s}, always,
                        [&answers](const QString &text) { answers.append(text); });
    QTRY_VERIFY(rig.inputBox());
    rig.inputBox()->findChild<QLineEdit *>()->insert(u"Ada\nLovelace"_s);
    press(rig.inputBox(), Qt::Key_Return);
    QTRY_COMPARE(answers, QStringList({u"Ada Lovelace"_s}));
}

void TestWindowPrompts::theInputBoxIsLabelled()
{
    Rig rig;
    rig.prompts.askText({u"New recipient"_s, u"Name of the <b>new</b> recipient:"_s}, always,
                        [](const QString &) {});
    QTRY_VERIFY(rig.inputBox());
    QCOMPARE(rig.inputBox()->windowTitle(), u"New recipient"_s);
    auto *edit = rig.inputBox()->findChild<QLineEdit *>();
    QCOMPARE(edit->text(), QString());
    QCOMPARE(rig.inputBox()->focusWidget(), edit);
    QCOMPARE(QAccessible::queryAccessibleInterface(edit)->text(QAccessible::Name),
             u"Name of the <b>new</b> recipient:"_s);
    const auto *label = rig.inputBox()->findChild<QLabel *>();
    QCOMPARE(label->text(), u"Name of the <b>new</b> recipient:"_s);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(label->buddy(), edit);
}

void TestWindowPrompts::filtersAreConverted_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("converted");
    QTest::newRow("none") << QString() << QStringList();
    QTest::newRow("every file") << u"All files (*.*)|*.*"_s
                                << QStringList(u"All files (*.*) (*)"_s);
    QTest::newRow("two") << u"Text file (*.txt)|*.txt|All files (*.*)|*.*"_s
                         << QStringList(
                                {u"Text file (*.txt) (*.txt *.TXT)"_s, u"All files (*.*) (*)"_s});
    QTest::newRow("two patterns")
        << u"HTML Files (*.htm; *.html)|*.htm; *.html"_s
        << QStringList(u"HTML Files (*.htm; *.html) (*.htm *.html *.HTM *.HTML)"_s);
    QTest::newRow("without blanks and parentheses")
        << u"Pages|*.htm;*.html"_s << QStringList(u"Pages (*.htm *.html *.HTM *.HTML)"_s);
    QTest::newRow("a description too many")
        << u"Text|*.txt|All"_s << QStringList(u"Text (*.txt *.TXT)"_s);
}

void TestWindowPrompts::filtersAreConverted()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, converted);
    QCOMPARE(nameFilters(filter), converted);
}

void TestWindowPrompts::theDialogHasTheValuesOfItsKind()
{
    Rig rig;
    const QFileDialog *dialog = rig.askFile(openText());
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), u"Select recipients file:"_s);
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
    press(dialog, Qt::Key_Escape);
    QTRY_VERIFY(!rig.fileDialog());

    dialog = rig.askFile(saveProject());
    QVERIFY(dialog);
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    QCOMPARE(dialog->fileMode(), QFileDialog::AnyFile);
    QCOMPARE(dialog->defaultSuffix(), u"svk"_s);
    QVERIFY(!dialog->testOption(QFileDialog::DontConfirmOverwrite));
    press(dialog, Qt::Key_Escape);
    QTRY_VERIFY(!rig.fileDialog());

    FileDialog other = saveProject();
    other.defaultExtension = u"*"_s;
    other.asksBeforeOverwriting = false;
    dialog = rig.askFile(other);
    QVERIFY(dialog);
    QCOMPARE(dialog->defaultSuffix(), QString());
    QVERIFY(dialog->testOption(QFileDialog::DontConfirmOverwrite));
}

void TestWindowPrompts::theShownFilterNamesItsPatternOnce()
{
    Rig rig;
    const QFileDialog *dialog = rig.askFile(openText());
    QVERIFY(dialog);
    const auto *combo = dialog->findChild<QComboBox *>(u"fileTypeCombo"_s);
    QCOMPARE(combo->itemText(0).trimmed(), u"Text file (*.txt)"_s);
    QCOMPARE(combo->itemText(1).trimmed(), u"All files (*.*)"_s);
}

void TestWindowPrompts::capitalSuffixesAreFound()
{
    const QTemporaryDir folder;
    for (const QString &name : {u"a.txt"_s, u"B.TXT"_s, u"c.svk"_s, u"README"_s})
        writeFile(folder.filePath(name), "x");
    Rig rig;
    FileDialog asked = openText();
    asked.initialFolder = folder.path();
    QFileDialog *dialog = rig.askFile(asked);
    QVERIFY(dialog);
    QTRY_COMPARE(listedNames(dialog), QStringList({u"B.TXT"_s, u"a.txt"_s}));
    // "*.*" finds every file.
    dialog->selectNameFilter(dialog->nameFilters().at(1));
    QTRY_COMPARE(listedNames(dialog),
                 QStringList({u"B.TXT"_s, u"README"_s, u"a.txt"_s, u"c.svk"_s}));
}

void TestWindowPrompts::aChosenFileIsAnsweredWithItsPath()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"list.txt"_s), "x");
    Rig rig;
    FileDialog asked = openText();
    asked.initialFolder = folder.path();
    const QFileDialog *dialog = rig.askFile(asked);
    QVERIFY(dialog);
    type(dialog, u"list.txt"_s);
    QAbstractButton *open = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
    QTRY_VERIFY(open->isEnabled());
    QTest::mouseClick(open, Qt::LeftButton);
    QTRY_COMPARE(rig.answers, 1);
    QCOMPARE(rig.answer, QDir::toNativeSeparators(folder.filePath(u"list.txt"_s)));
}

void TestWindowPrompts::aCancelledDialogAnswersNothing()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"list.txt"_s), "x");
    Rig rig;
    FileDialog asked = openText();
    asked.initialFolder = folder.path();
    const QFileDialog *dialog = rig.askFile(asked);
    QVERIFY(dialog);
    rig.answer = u"not answered"_s;
    type(dialog, u"list.txt"_s);
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel),
                      Qt::LeftButton);
    QTRY_COMPARE(rig.answers, 1);
    QCOMPARE(rig.answer, QString());
}

void TestWindowPrompts::anOpenedNameGetsTheSuffixOnlyWhenSuchAFileExists_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("opened");
    QTest::newRow("with its suffix") << u"list.txt"_s << u"list.txt"_s;
    QTest::newRow("without its suffix") << u"list"_s << u"list.txt"_s;
    QTest::newRow("has none") << u"README"_s << u"README"_s;
    QTest::newRow("both exist") << u"both"_s << u"both"_s;
    QTest::newRow("longer than one that was completed") << u"listed"_s << u"listed"_s;
    QTest::newRow("neither exists") << u"nothing"_s << QString();
}

void TestWindowPrompts::anOpenedNameGetsTheSuffixOnlyWhenSuchAFileExists()
{
    QFETCH(QString, typed);
    QFETCH(QString, opened);
    const QTemporaryDir folder;
    for (const QString &name : {u"list.txt"_s, u"README"_s, u"both"_s, u"both.txt"_s, u"listed"_s})
        writeFile(folder.filePath(name), "x");
    Rig rig;
    FileDialog asked = openText();
    asked.initialFolder = folder.path();
    const QFileDialog *dialog = rig.askFile(asked);
    QVERIFY(dialog);
    type(dialog, typed);
    QAbstractButton *open = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
    QCOMPARE(open->isEnabled(), !opened.isEmpty());
    if (opened.isEmpty())
        return;
    QTest::mouseClick(open, Qt::LeftButton);
    QTRY_COMPARE(rig.answers, 1);
    QCOMPARE(rig.answer, QDir::toNativeSeparators(folder.filePath(opened)));
}

void TestWindowPrompts::aSavedNameGetsTheSuffix_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");
    QTest::newRow("without") << u"letter"_s << u"letter.svk"_s;
    QTest::newRow("with") << u"letter.svk"_s << u"letter.svk"_s;
    QTest::newRow("in capital letters") << u"letter.SVK"_s << u"letter.SVK"_s;
    QTest::newRow("another") << u"letter.old"_s << u"letter.old"_s;
}

void TestWindowPrompts::aSavedNameGetsTheSuffix()
{
    QFETCH(QString, typed);
    QFETCH(QString, saved);
    const QTemporaryDir folder;
    Rig rig;
    FileDialog asked = saveProject();
    asked.initialFolder = folder.path();
    const QFileDialog *dialog = rig.askFile(asked);
    QVERIFY(dialog);
    type(dialog, typed);
    press(dialog, Qt::Key_Return);
    QTRY_COMPARE(rig.answers, 1);
    QCOMPARE(rig.answer, QDir::toNativeSeparators(folder.filePath(saved)));
}

void TestWindowPrompts::theProposedNameIsTakenByReturn()
{
    const QTemporaryDir folder;
    Rig rig;
    FileDialog asked = saveProject();
    asked.initialFolder = folder.path();
    asked.initialName = u"Soci (2).svk"_s;
    const QFileDialog *dialog = rig.askFile(asked);
    QVERIFY(dialog);
    press(dialog, Qt::Key_Return);
    QTRY_COMPARE(rig.answers, 1);
    QCOMPARE(rig.answer, QDir::toNativeSeparators(folder.filePath(u"Soci (2).svk"_s)));
}

void TestWindowPrompts::overwritingIsAskedForWhereItShould()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"letter.svk"_s), "x");
    Rig rig;
    FileDialog asked = saveProject();
    asked.initialFolder = folder.path();
    const QFileDialog *dialog = rig.askFile(asked);
    QVERIFY(dialog);
    type(dialog, u"letter"_s);

    // Qt asks from an event loop of its own, so what presses its buttons must be there before.
    const auto answerInnerQuestion = [&](QMessageBox::StandardButton answer) {
        bool hasAsked = false;
        QMetaObject::invokeMethod(
            &rig.window,
            [&hasAsked, dialog, answer] {
                hasAsked = innerQuestion(dialog) != nullptr;
                if (hasAsked)
                    click(innerQuestion(dialog), answer);
            },
            Qt::QueuedConnection);
        press(dialog, Qt::Key_Return);
        return hasAsked;
    };
    QVERIFY(answerInnerQuestion(QMessageBox::No));
    QCoreApplication::processEvents();
    QCOMPARE(rig.fileDialog(), dialog);
    QCOMPARE(rig.answers, 0);
    QVERIFY(answerInnerQuestion(QMessageBox::Yes));
    QTRY_COMPARE(rig.answers, 1);
    QCOMPARE(rig.answer, QDir::toNativeSeparators(folder.filePath(u"letter.svk"_s)));

    asked.asksBeforeOverwriting = false;
    dialog = rig.askFile(asked);
    QVERIFY(dialog);
    type(dialog, u"letter"_s);
    press(dialog, Qt::Key_Return);
    QTRY_COMPARE(rig.answers, 2);
    QCOMPARE(rig.answer, QDir::toNativeSeparators(folder.filePath(u"letter.svk"_s)));
}

void TestWindowPrompts::aDialogThatAsksMayBecomeStale()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"letter.svk"_s), "x");
    Rig rig;
    FileDialog asked = saveProject();
    asked.initialFolder = folder.path();
    bool stands = true;
    rig.prompts.askFile(
        asked, [&stands] { return stands; }, [&rig](const QString &) { ++rig.answers; });
    const QPointer<QFileDialog> dialog = rig.fileDialog();
    QVERIFY(dialog);
    type(dialog, u"letter"_s);
    bool hasAsked = false;
    QMetaObject::invokeMethod(
        &rig.window,
        [&] {
            hasAsked = innerQuestion(dialog) != nullptr;
            stands = false;
            rig.prompts.closeStale();
            stands = true;
        },
        Qt::QueuedConnection);
    press(dialog, Qt::Key_Return);
    QVERIFY(hasAsked);
    QTRY_VERIFY(!dialog);
    QCoreApplication::processEvents();
    QCOMPARE(rig.answers, 0);
}

void TestWindowPrompts::dialogsShareTheirLastFolder()
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    writeFile(second.filePath(u"list.txt"_s), "x");
    Rig rig;
    const QFileDialog *dialog = rig.askFile(openText());
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().absolutePath(), m_documents);
    enter(dialog, second.filePath(u"list.txt"_s));
    QTRY_COMPARE(rig.answers, 1);

    // One that opens elsewhere and is left does not count.
    FileDialog asked = openText();
    asked.initialFolder = first.path();
    dialog = rig.askFile(asked);
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().absolutePath(), first.path());
    press(dialog, Qt::Key_Escape);
    QTRY_COMPARE(rig.answers, 2);

    dialog = rig.askFile(saveProject());
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().absolutePath(), second.path());
    enter(dialog, first.filePath(u"letter"_s));
    QTRY_COMPARE(rig.answers, 3);

    dialog = rig.askFile(openText());
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().absolutePath(), first.path());
}

void TestWindowPrompts::theFolderOfADialogExists_data()
{
    QTest::addColumn<QString>("initialFolder");
    QTest::addColumn<bool>("documentsExist");
    QTest::newRow("missing") << m_home.filePath(u"gone"_s) << true;
    QTest::newRow("a file") << m_home.filePath(u"config/user-dirs.dirs"_s) << true;
    QTest::newRow("no documents either") << m_home.filePath(u"gone"_s) << false;
    QTest::newRow("at first, and no documents") << QString() << false;
}

void TestWindowPrompts::theFolderOfADialogExists()
{
    QFETCH(QString, initialFolder);
    QFETCH(bool, documentsExist);
    const QString away = m_home.filePath(u"moved"_s);
    if (!documentsExist)
        QVERIFY(QDir().rename(m_documents, away));
    Rig rig;
    FileDialog asked = openText();
    asked.initialFolder = initialFolder;
    const QFileDialog *dialog = rig.askFile(asked);
    if (!documentsExist)
        QVERIFY(QDir().rename(away, m_documents));
    QVERIFY(dialog);
    QCOMPARE(dialog->directory().absolutePath(), documentsExist ? m_documents : m_home.path());
}
