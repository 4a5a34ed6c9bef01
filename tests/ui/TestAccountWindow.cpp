#include "TestAccountWindow.h"

#include "AccountDriver.h"
#include "Languages.h"

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>

#include <array>

using namespace Qt::StringLiterals;

namespace {

const QString &Host = AccountRig::Host;
const QByteArray &Fingerprint = AccountRig::Fingerprint;

ServerAccount accountOfAnna()
{
    ServerAccount account;
    account.user = u"anna"_s;
    account.tokenCommand = u"token --for anna"_s;
    account.useChunking = false;
    account.writeTrace = true;
    account.trustedCertificates = {Fingerprint, QByteArray(32, '\x01')};
    account.startTlsPorts = {25, 587};
    return account;
}

// The widgets that Tab visits, in its order.
QList<QWidget *> inputsOf(frmAccount &page)
{
    QWidget *const first = page.findChild<QWidget *>(u"txtUser"_s);
    QList<QWidget *> inputs;
    QWidget *widget = first;
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->isWindow())
            inputs.append(widget);
        widget = widget->nextInFocusChain();
    } while (widget != first);
    return inputs;
}

} // namespace

void TestAccountWindow::itIsThatOfTheServerInTheBox()
{
    AccountRig rig;
    rig.open();
    QVERIFY(rig.page());
    QCOMPARE(rig.page()->windowTitle(), u"Account of smtp.example.org"_s);
    QCOMPARE(rig.page()->server(), (ServerAddress{Host, 587}));
    QVERIFY(rig.in<QLabel>("lblTest").text().contains(u"smtp.example.org:587"_s));
}

void TestAccountWindow::aServerMustBeNamed_data()
{
    QTest::addColumn<QString>("server");
    QTest::addColumn<Language>("language");
    QTest::addColumn<QString>("notice");
    QTest::newRow("none") << QString() << Language::English << u"Fill in the SMTP server first."_s;
    QTest::newRow("blanks") << u"  "_s << Language::English << u"Fill in the SMTP server first."_s;
    QTest::newRow("only a port") << u":587"_s << Language::Italian
                                 << u"Prima compilare il server SMTP."_s;
    QTest::newRow("no port") << u"mail.example.org:many"_s << Language::English
                             << u"'many' is not a port number from 1 to 65535."_s;
    QTest::newRow("no port, Italian") << u"mail.example.org:0"_s << Language::Italian
                                      << u"'0' non è un numero di porta da 1 a 65535."_s;
}

void TestAccountWindow::aServerMustBeNamed()
{
    QFETCH(QString, server);
    QFETCH(Language, language);
    QFETCH(QString, notice);
    AccountRig rig({}, language);
    rig.core->w.form.setText(Control::txtServer, server);
    rig.open();
    QVERIFY(!rig.page());
    QCOMPARE(rig.core->prompts.takeNoticeTexts(), QStringList{notice});
}

void TestAccountWindow::itIsOpenOnceForEachServer()
{
    AccountRig rig;
    rig.open();
    frmAccount *const first = rig.page();
    rig.open();
    QCOMPARE(rig.window->findChildren<frmAccount *>().size(), 1);
    rig.core->w.form.setText(Control::txtServer, u"mail.example.net"_s);
    rig.open();
    QCOMPARE(rig.window->findChildren<frmAccount *>().size(), 2);
    QVERIFY(first->isVisible());
    first->close();
    QTRY_COMPARE(rig.window->findChildren<frmAccount *>().size(), 1);
}

void TestAccountWindow::itBlocksNothing()
{
    AccountRig rig;
    rig.open();
    QVERIFY(!rig.page()->isModal());
    QTest::mouseClick(&rig.get<QPushButton>("cmdAvvio"), Qt::LeftButton);
    QCOMPARE(rig.core->w.form.runState(), RunState::Waiting);
    QVERIFY(rig.page());
}

void TestAccountWindow::itCanBeOpenedInAPauseAndNotInARun()
{
    AccountRig rig;
    const auto &button = rig.get<QToolButton>("cmdAccount");
    QVERIFY(button.isEnabled());
    rig.core->start();
    QVERIFY(!button.isEnabled());
    QTest::mouseClick(&rig.get<QPushButton>("cmdPausa"), Qt::LeftButton);
    QVERIFY(button.isEnabled());
    rig.open();
    QVERIFY(rig.page());
}

void TestAccountWindow::everyControlHasItsCaption_data()
{
    addLanguages();
}

void TestAccountWindow::everyControlHasItsCaption()
{
    struct Line
    {
        const char *name;
        const char *property;
        QString english;
        QString italian;
    };
    const std::array lines{
        Line{"grpLogin", "title", u"Login"_s, u"Accesso"_s},
        Line{"lblUser", "text", u"User:"_s, u"Utente:"_s},
        Line{"lblPassword", "text", u"Password:"_s, u"Password:"_s},
        Line{"cmdForgetPassword", "text", u"Forget"_s, u"Dimentica"_s},
        Line{"lblKeyring", "text", u"It is kept in the keyring. Left empty, it stays as it is."_s,
             u"Si conserva nel portachiavi. Lasciata vuota, resta com'è."_s},
        Line{"lblTokenCommand", "text", u"Token command:"_s, u"Comando per il token:"_s},
        Line{"grpEncryption", "title", u"Encryption"_s, u"Cifratura"_s},
        Line{"cmdRemove", "text", u"Remove"_s, u"Rimuovi"_s},
        Line{"cmdForgetStartTls", "text", u"Forget"_s, u"Dimentica"_s},
        Line{"grpDialogue", "title", u"Dialogue"_s, u"Dialogo"_s},
        Line{"chkPipelining", "text", u"Use PIPELINING"_s, u"Usa PIPELINING"_s},
        Line{"chkChunking", "text", u"Use CHUNKING"_s, u"Usa CHUNKING"_s},
        Line{"chkTrace", "text", u"Write a protocol trace"_s,
             u"Scrivi una traccia del protocollo"_s},
        Line{"cmdOpenTrace", "text", u"Open"_s, u"Apri"_s},
        Line{"grpTest", "title", u"Test"_s, u"Prova"_s},
        Line{"lblTest", "text",
             u"Tries smtp.example.org:587 out and sends nothing. Like OK, it keeps what is entered "
             "here."_s,
             u"Prova smtp.example.org:587 senza inviare nulla. Come OK, conserva quanto è inserito "
             "qui."_s},
        Line{"cmdTest", "text", u"Test the connection"_s, u"Prova il collegamento"_s},
        Line{"cmdStopTest", "text", u"Stop"_s, u"Stop"_s},
        Line{"cmdTrust", "text", u"Trust this certificate"_s, u"Fidati di questo certificato"_s},
        Line{"cmdOK", "text", u"OK"_s, u"OK"_s},
        Line{"cmdCancel", "text", u"Cancel"_s, u"Annulla"_s},
    };
    QFETCH(Language, language);
    const bool isItalian = language == Language::Italian;
    AccountRig rig({}, language);
    rig.open();
    QCOMPARE(rig.page()->windowTitle(),
             isItalian ? u"Account di smtp.example.org"_s : u"Account of smtp.example.org"_s);
    for (const Line &line : lines) {
        QCOMPARE(rig.in<QWidget>(line.name).property(line.property).toString(),
                 isItalian ? line.italian : line.english);
    }
}

void TestAccountWindow::everyInputHasANameOfItsOwn_data()
{
    addLanguages();
}

void TestAccountWindow::everyInputHasANameOfItsOwn()
{
    QFETCH(Language, language);
    AccountRig rig({}, language);
    rig.open();
    QStringList names;
    for (QWidget *widget : inputsOf(*rig.page())) {
        const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
        QVERIFY2(!name.trimmed().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY2(!names.contains(name), qPrintable(name));
        names.append(name);
    }
}

void TestAccountWindow::tabFollowsTheReadingOrder()
{
    AccountRig rig(accountOfAnna());
    rig.open();
    QStringList names;
    for (const QWidget *widget : inputsOf(*rig.page()))
        names.append(widget->objectName());
    QCOMPARE(names, QStringList({u"txtUser"_s, u"txtPassword"_s, u"cmdForgetPassword"_s,
                                 u"txtTokenCommand"_s, u"lstCertificates"_s, u"cmdRemove"_s,
                                 u"lstStartTls"_s, u"cmdForgetStartTls"_s, u"chkPipelining"_s,
                                 u"chkChunking"_s, u"chkTrace"_s, u"cmdOpenTrace"_s, u"cmdTest"_s,
                                 u"cmdStopTest"_s, u"cmdTrust"_s, u"lstReport"_s, u"cmdOK"_s,
                                 u"cmdCancel"_s}));
}

void TestAccountWindow::itShowsWhatIsKept()
{
    AccountRig rig(accountOfAnna());
    rig.side->passwords.passwords.insert(u"anna@smtp.example.org"_s, u"secret"_s);
    rig.open();
    QCOMPARE(rig.in<QLineEdit>("txtUser").text(), u"anna"_s);
    QCOMPARE(rig.in<QLineEdit>("txtPassword").text(), QString());
    QCOMPARE(rig.in<QLineEdit>("txtPassword").echoMode(), QLineEdit::Password);
    QCOMPARE(rig.in<QLineEdit>("txtTokenCommand").text(), u"token --for anna"_s);
    QVERIFY(rig.in<QCheckBox>("chkPipelining").isChecked());
    QVERIFY(!rig.in<QCheckBox>("chkChunking").isChecked());
    QVERIFY(rig.in<QCheckBox>("chkTrace").isChecked());
    QCOMPARE(rig.in<QLabel>("lblTraceFile").text(), rig.core->folder.filePath(u"SMTP trace.txt"_s));
    QCOMPARE(rig.in<LineList>("lstCertificates").lines().constFirst().text,
             fingerprintText(Fingerprint));
    QCOMPARE(rig.in<LineList>("lstStartTls").count(), 2);
    QCOMPARE(rig.in<LineList>("lstStartTls").lines().constLast().text,
             u"offers STARTTLS on port 587: never without"_s);
    for (const char *button : {"cmdStopTest", "cmdTrust"})
        QVERIFY(!rig.in<QPushButton>(button).isVisible());
    // Nobody needs to know the password to show the page.
    QVERIFY(rig.side->passwords.reads.isEmpty());
}

void TestAccountWindow::okKeepsWhatWasEntered()
{
    AccountRig rig;
    rig.open();
    QTest::keyClicks(&rig.in<QLineEdit>("txtUser"), u"anna"_s);
    QTest::keyClicks(&rig.in<QLineEdit>("txtTokenCommand"), u"token"_s);
    for (const char *box : {"chkPipelining", "chkChunking", "chkTrace"})
        rig.in<QCheckBox>(box).click();
    QTest::keyClick(&rig.in<QLineEdit>("txtUser"), Qt::Key_Return);
    QVERIFY(!rig.page());
    ServerAccount expected;
    expected.user = u"anna"_s;
    expected.tokenCommand = u"token"_s;
    expected.usePipelining = false;
    expected.useChunking = false;
    expected.writeTrace = true;
    QCOMPARE(rig.account(), expected);
    QTRY_VERIFY(rig.window->findChildren<frmAccount *>().isEmpty());
}

void TestAccountWindow::cancelAndEscapeChangeNothing_data()
{
    QTest::addColumn<bool>("escape");
    QTest::addRow("Cancel") << false;
    QTest::addRow("Escape") << true;
}

void TestAccountWindow::cancelAndEscapeChangeNothing()
{
    QFETCH(bool, escape);
    AccountRig rig(accountOfAnna());
    rig.open();
    rig.in<QLineEdit>("txtUser").setText(u"bruno"_s);
    rig.in<QLineEdit>("txtPassword").setText(u"secret"_s);
    rig.in<LineList>("lstCertificates").setCurrentRow(0);
    rig.press("cmdRemove");
    if (escape)
        QTest::keyClick(rig.page(), Qt::Key_Escape);
    else
        rig.press("cmdCancel");
    QVERIFY(!rig.page());
    QCoreApplication::processEvents();
    QCOMPARE(rig.account(), accountOfAnna());
    QVERIFY(rig.side->passwords.passwords.isEmpty());
}

void TestAccountWindow::whatCannotBeKeptIsSaidAndThePageStays()
{
    AccountRig rig;
    rig.open();
    rig.in<QLineEdit>("txtUser").setText(u"anna"_s);
    rig.in<QLineEdit>("txtPassword").setText(u"secret"_s);
    rig.side->passwords.failure = u"the keyring is locked"_s;
    rig.press("cmdOK");
    const QList<Notice> notices = rig.core->prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.constFirst().icon, Icon::Exclamation);
    QCOMPARE(notices.constFirst().title, u"Account of smtp.example.org"_s);
    QCOMPARE(notices.constFirst().text, u"the keyring is locked"_s);
    QVERIFY(rig.page());
    QCOMPARE(rig.in<QLineEdit>("txtPassword").text(), u"secret"_s);
    rig.side->passwords.failure.clear();
    rig.press("cmdOK");
    QVERIFY(!rig.page());
}

void TestAccountWindow::theKeyringTakesThePassword()
{
    AccountRig rig;
    rig.open();
    rig.in<QLineEdit>("txtUser").setText(u"anna"_s);
    QTest::keyClicks(&rig.in<QLineEdit>("txtPassword"), u"secret"_s);
    const QPointer<QLineEdit> password = &rig.in<QLineEdit>("txtPassword");
    rig.page()->setAttribute(Qt::WA_DeleteOnClose, false);
    rig.press("cmdOK");
    QCOMPARE(rig.side->passwords.passwords.value(u"anna@smtp.example.org"_s), u"secret"_s);
    QCOMPARE(password->text(), QString());
}

void TestAccountWindow::withoutAKeyringThereIsNoPassword()
{
    AccountRig rig(accountOfAnna());
    rig.side->passwords.available = false;
    rig.open();
    QVERIFY(!rig.in<QLineEdit>("txtPassword").isEnabled());
    QVERIFY(!rig.in<QPushButton>("cmdForgetPassword").isEnabled());
    QCOMPARE(rig.in<QLabel>("lblKeyring").text(),
             u"There is no keyring here to keep a password in: it is asked for when it is "
             "needed."_s);
    rig.press("cmdOK");
    QVERIFY(!rig.page());
}

void TestAccountWindow::thePasswordIsForgotten()
{
    AccountRig rig(accountOfAnna());
    rig.side->passwords.passwords.insert(u"anna@smtp.example.org"_s, u"secret"_s);
    rig.open();
    rig.press("cmdForgetPassword");
    QCOMPARE(rig.in<QLabel>("lblKeyring").text(), u"OK takes the password out of the keyring."_s);
    QVERIFY(!rig.in<QPushButton>("cmdForgetPassword").isEnabled());
    QCOMPARE(rig.side->passwords.passwords.size(), 1);
    rig.press("cmdOK");
    QVERIFY(!rig.page());
    QVERIFY(rig.side->passwords.passwords.isEmpty());
}

void TestAccountWindow::aCertificateIsRemoved()
{
    AccountRig rig(accountOfAnna());
    rig.open();
    QVERIFY(!rig.in<QPushButton>("cmdRemove").isEnabled());
    rig.in<LineList>("lstCertificates").setCurrentRow(0);
    rig.press("cmdRemove");
    QCOMPARE(rig.in<LineList>("lstCertificates").count(), 1);
    rig.in<LineList>("lstCertificates").setCurrentRow(0);
    rig.press("cmdRemove");
    // What is empty takes no room.
    QVERIFY(!rig.in<LineList>("lstCertificates").isVisible());
    QVERIFY(rig.in<LineList>("lstStartTls").isVisible());
    rig.press("cmdOK");
    QVERIFY(rig.account().trustedCertificates.isEmpty());
}

void TestAccountWindow::theEncryptionIsForgotten()
{
    AccountRig rig(accountOfAnna());
    rig.open();
    QVERIFY(!rig.in<QPushButton>("cmdForgetStartTls").isEnabled());
    rig.in<LineList>("lstStartTls").setCurrentRow(1);
    rig.press("cmdForgetStartTls");
    QCOMPARE(rig.in<LineList>("lstStartTls").count(), 1);
    rig.press("cmdOK");
    QCOMPARE(rig.account().startTlsPorts, QList<quint16>{25});
}

void TestAccountWindow::theTraceIsOpened()
{
    AccountRig rig;
    const QString file = rig.core->file(u"SMTP trace.txt"_s, "C: EHLO pc\n");
    rig.open();
    rig.press("cmdOpenTrace");
    QCOMPARE(rig.shell.opened, QStringList{u"file://"_s + file});
}

void TestAccountWindow::aTraceThatIsNotThereIsSaid()
{
    AccountRig rig;
    rig.open();
    rig.press("cmdOpenTrace");
    QVERIFY(rig.shell.opened.isEmpty());
    QCOMPARE(rig.core->prompts.takeNoticeTexts(), QStringList{u"Nothing has been written yet."_s});
}
