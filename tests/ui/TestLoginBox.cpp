#include "TestLoginBox.h"

#include "BoxDriver.h"
#include "Languages.h"
#include "ui/frmAccesso.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize SmallScreen(1366, 768);

/// A main window with an idle form, and what became of a login that was asked for.
struct LoginRig : BoxRig
{
    explicit LoginRig(Language language = Language::English) : BoxRig(language)
    {
        show();
        core->fillForm(3);
    }

    void ask(
        const LoginBox &box, const Stands &stands = [] { return true; })
    {
        core->prompts.askLogin(box, stands, [this](const std::optional<LoginEntry> &entry) {
            ++answers;
            entered = entry;
        });
    }
    /// Asks, and waits until the box can be typed into.
    void open(const LoginBox &box)
    {
        ask(box);
        QTRY_VERIFY(this->box());
        QVERIFY(QTest::qWaitForWindowActive(this->box()));
    }
    [[nodiscard]] frmAccesso *box() const { return shown<frmAccesso>("frmAccesso"); }
    template <typename Widget>
    [[nodiscard]] Widget &in(const char *name) const
    {
        return *box()->template findChild<Widget *>(QLatin1String(name));
    }
    void type(const QString &text) const
    {
        for (const QChar c : text)
            QTest::keyClick(box()->windowHandle(), c.toLatin1());
    }

    int answers = 0;
    std::optional<LoginEntry> entered;
};

LoginBox boxFor(const QString &user, const QString &refusal = {}, bool canRemember = false)
{
    return {u"smtp.example.org:587"_s, user, refusal, canRemember};
}

} // namespace

void TestLoginBox::itSpeaksTheLanguageOfTheWindow_data()
{
    addLanguages();
}

void TestLoginBox::itSpeaksTheLanguageOfTheWindow()
{
    QFETCH(Language, language);
    const bool isItalian = language == Language::Italian;
    LoginRig rig(language);
    rig.open(boxFor({}, u"535 5.7.8 no"_s, true));
    QCOMPARE(rig.box()->windowTitle(), isItalian ? u"Accesso al server"_s : u"Server login"_s);
    const QString server = rig.in<QLabel>("lblServer").text();
    QCOMPARE(server, isItalian ? u"Il server smtp.example.org:587 chiede chi è Lei."_s
                               : u"The server smtp.example.org:587 asks who you are."_s);
    QCOMPARE(rig.in<QLabel>("lblRefused").text(), isItalian
                                                      ? u"Non ha accettato l'ultimo accesso:"_s
                                                      : u"It did not accept the last login:"_s);
    QCOMPARE(rig.in<QLabel>("lblUser").text(), isItalian ? u"Utente:"_s : u"User:"_s);
    QCOMPARE(rig.in<QLabel>("lblPassword").text(), u"Password:"_s);
    QCOMPARE(rig.in<QCheckBox>("chkRemember").text(),
             isItalian ? u"Ricorda nel portachiavi"_s : u"Remember in the keyring"_s);
    QCOMPARE(rig.in<QPushButton>("cmdOK").text(), u"OK"_s);
    QCOMPARE(rig.in<QPushButton>("cmdCancel").text(), isItalian ? u"Annulla"_s : u"Cancel"_s);
}

void TestLoginBox::itSaysWhyItAsksAgain()
{
    LoginRig rig;
    rig.open(boxFor({}));
    QVERIFY(!rig.in<QLabel>("lblRefused").isVisible());
    QVERIFY(!rig.in<QPlainTextEdit>("txtRefusal").isVisible());
    BoxRig::key(rig.box(), Qt::Key_Escape);
    QTRY_COMPARE(rig.answers, 1);

    rig.open(boxFor({}, u"535 5.7.8 Wrong user or password"_s));
    QVERIFY(rig.in<QLabel>("lblRefused").isVisible());
    QVERIFY(rig.in<QPlainTextEdit>("txtRefusal").isVisible());
    QCOMPARE(rig.in<QPlainTextEdit>("txtRefusal").toPlainText(),
             u"535 5.7.8 Wrong user or password"_s);
}

void TestLoginBox::aRefusalIsShownPlainAndFits_data()
{
    QTest::addColumn<QString>("refusal");
    QTest::newRow("markup") << u"535 <b>no</b> <img src='file:///etc/hostname'>"_s;
    QTest::newRow("one endless word") << QString(5000, u'x');
    QTest::newRow("many lines") << u"no\n"_s.repeated(500).trimmed();
}

void TestLoginBox::aRefusalIsShownPlainAndFits()
{
    QFETCH(QString, refusal);
    LoginRig rig;
    rig.open(boxFor({}, refusal));
    QCOMPARE(rig.in<QPlainTextEdit>("txtRefusal").toPlainText(), refusal);
    QVERIFY(rig.box()->width() <= SmallScreen.width() / 2);
    QVERIFY(rig.box()->height() <= SmallScreen.height() / 2);
}

void TestLoginBox::rememberingIsOfferedWhereThereIsAKeyring_data()
{
    QTest::addColumn<bool>("canRemember");
    QTest::newRow("a keyring") << true;
    QTest::newRow("none") << false;
}

void TestLoginBox::rememberingIsOfferedWhereThereIsAKeyring()
{
    QFETCH(bool, canRemember);
    LoginRig rig;
    rig.open(boxFor(u"anna"_s, {}, canRemember));
    QCOMPARE(rig.in<QCheckBox>("chkRemember").isVisible(), canRemember);
    QVERIFY(!rig.in<QCheckBox>("chkRemember").isChecked());
}

void TestLoginBox::theFirstFieldToFillHasTheFocus_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("field");
    QTest::newRow("nobody is known") << QString() << u"txtUser"_s;
    QTest::newRow("the user is known") << u"anna"_s << u"txtPassword"_s;
}

void TestLoginBox::theFirstFieldToFillHasTheFocus()
{
    QFETCH(QString, user);
    QFETCH(QString, field);
    LoginRig rig;
    rig.open(boxFor(user, u"535 no"_s));
    QCOMPARE(rig.box()->focusWidget()->objectName(), field);
    QCOMPARE(rig.in<QLineEdit>("txtUser").text(), user);
}

void TestLoginBox::okNeedsAUserAndAPassword()
{
    LoginRig rig;
    rig.open(boxFor({}));
    const auto &ok = rig.in<QPushButton>("cmdOK");
    auto &user = rig.in<QLineEdit>("txtUser");
    auto &password = rig.in<QLineEdit>("txtPassword");
    QVERIFY(!ok.isEnabled());
    QTest::keyClicks(&user, u"anna"_s);
    QVERIFY(!ok.isEnabled());
    BoxRig::key(rig.box(), Qt::Key_Return);
    QTest::keyClicks(&password, u" "_s);
    QVERIFY(ok.isEnabled());
    user.setText(u"  "_s);
    QVERIFY(!ok.isEnabled());
    BoxRig::key(rig.box(), Qt::Key_Return);
    QVERIFY(rig.box());
    QCOMPARE(rig.answers, 0);
}

void TestLoginBox::tabFollowsTheReadingOrder()
{
    LoginRig rig;
    rig.open(boxFor({}, u"535 no"_s, true));
    rig.in<QLineEdit>("txtPassword").setText(u"secret"_s);
    rig.in<QLineEdit>("txtUser").setText(u"anna"_s);
    QStringList visited;
    for (int step = 0; step < 6; ++step) {
        visited.append(rig.box()->focusWidget()->objectName());
        QTest::keyClick(rig.box()->windowHandle(), Qt::Key_Tab);
    }
    QCOMPARE(visited, QStringList({u"txtUser"_s, u"txtPassword"_s, u"chkRemember"_s, u"cmdOK"_s,
                                   u"cmdCancel"_s, u"txtRefusal"_s}));
}

void TestLoginBox::whatWasEnteredIsTheAnswer()
{
    LoginRig rig;
    rig.open(boxFor({}, {}, true));
    rig.type(u" anna@example.org "_s);
    QTest::keyClick(rig.box()->windowHandle(), Qt::Key_Tab);
    rig.type(u" se cret "_s);
    QTest::keyClick(rig.box()->windowHandle(), Qt::Key_Tab);
    BoxRig::key(rig.box(), Qt::Key_Space);
    BoxRig::key(rig.box(), Qt::Key_Return);
    QTRY_COMPARE(rig.answers, 1);
    QVERIFY(rig.entered);
    QCOMPARE(rig.entered->user, u"anna@example.org"_s);
    // Blanks may be part of a password.
    QCOMPARE(rig.entered->password, u" se cret "_s);
    QVERIFY(rig.entered->remember);
    QTRY_VERIFY(rig.window->findChildren<frmAccesso *>().isEmpty());
}

void TestLoginBox::linesPastedIntoTheUserBecomeOne()
{
    LoginRig rig;
    rig.open(boxFor({}));
    rig.in<QLineEdit>("txtUser").setText(u"anna\r\nbianchi"_s);
    rig.in<QLineEdit>("txtPassword").setText(u"secret"_s);
    rig.in<QPushButton>("cmdOK").click();
    QTRY_COMPARE(rig.answers, 1);
    QCOMPARE(rig.entered->user, u"anna bianchi"_s);
    QVERIFY(!rig.entered->remember);
}

void TestLoginBox::thePasswordIsHiddenAndLeavesTheBox()
{
    LoginRig rig;
    rig.open(boxFor(u"anna"_s));
    auto &password = rig.in<QLineEdit>("txtPassword");
    QCOMPARE(password.echoMode(), QLineEdit::Password);
    rig.type(u"secret"_s);
    QVERIFY(!password.displayText().contains(u"secret"_s));
    const frmAccesso *const box = rig.box();
    BoxRig::key(box, Qt::Key_Return);
    // The box is still there until the event loop deletes it.
    QCOMPARE(password.text(), QString());
    QTRY_COMPARE(rig.answers, 1);
    QCOMPARE(rig.entered->password, u"secret"_s);
}

void TestLoginBox::leavingTheBoxIsCancel_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("Escape") << 0;
    QTest::newRow("Cancel") << 1;
    QTest::newRow("the title bar") << 2;
}

void TestLoginBox::leavingTheBoxIsCancel()
{
    QFETCH(int, way);
    LoginRig rig;
    rig.open(boxFor(u"anna"_s));
    rig.type(u"secret"_s);
    if (way == 0)
        BoxRig::key(rig.box(), Qt::Key_Escape);
    else if (way == 1)
        rig.in<QPushButton>("cmdCancel").click();
    else
        rig.box()->close();
    QTRY_COMPARE(rig.answers, 1);
    QVERIFY(!rig.entered);
    QTRY_VERIFY(rig.window->findChildren<frmAccesso *>().isEmpty());
}

void TestLoginBox::theAnswerIsPosted()
{
    LoginRig rig;
    rig.open(boxFor(u"anna"_s));
    rig.box()->reject();
    QCOMPARE(rig.answers, 0);
    QTRY_COMPARE(rig.answers, 1);
}

void TestLoginBox::theRunCanBePausedWhileItIsOpen()
{
    LoginRig rig;
    rig.startSending();
    rig.open(boxFor(u"anna"_s));
    QVERIFY(!rig.box()->isModal());
    rig.click("cmdPausa");
    QCOMPARE(rig.core->w.form.runState(), RunState::Paused);
    QVERIFY(rig.box());
    BoxRig::key(rig.box(), Qt::Key_Escape);
    QTRY_COMPARE(rig.answers, 1);
}

void TestLoginBox::itClosesWhenTheRunIsStopped()
{
    LoginRig rig;
    rig.startSending();
    const Form &form = rig.core->w.form;
    rig.ask(boxFor(u"anna"_s),
            [&form, situation = form.situation()] { return form.situation() == situation; });
    QTRY_VERIFY(rig.box());
    rig.click("cmdStop");
    rig.answer(QMessageBox::Ok);
    QTRY_VERIFY(!rig.box());
    QCOMPARE(form.runState(), RunState::Idle);
    QTRY_VERIFY(rig.window->findChildren<frmAccesso *>().isEmpty());
    QCOMPARE(rig.answers, 0);
}

void TestLoginBox::aStaleBoxNeverOpens()
{
    LoginRig rig;
    bool stands = true;
    rig.core->prompts.notice({Icon::Information, u"Send"_s, u"one"_s});
    QTRY_VERIFY(rig.notice());
    rig.ask(boxFor({}), [&stands] { return stands; });
    stands = false;
    rig.dismissNotice();
    QTRY_VERIFY(rig.window->findChildren<QMessageBox *>().isEmpty());
    QVERIFY(rig.window->findChildren<frmAccesso *>().isEmpty());
    QCOMPARE(rig.answers, 0);
}

void TestLoginBox::itWaitsForTheNoticesBeforeIt()
{
    LoginRig rig;
    rig.core->prompts.notice({Icon::Information, u"Send"_s, u"one"_s});
    rig.ask(boxFor({}));
    QTRY_VERIFY(rig.notice());
    QVERIFY(!rig.box());
    rig.dismissNotice();
    QTRY_VERIFY(rig.box());
}
