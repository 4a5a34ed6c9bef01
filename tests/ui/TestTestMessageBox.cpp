#include "TestTestMessageBox.h"

#include "Languages.h"
#include "WindowRig.h"
#include "ui/RecipientView.h"
#include "ui/frmTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

struct TestRig : WindowRig
{
    explicit TestRig(Language language = Language::English) : WindowRig(language)
    {
        show();
        core->fillForm(3);
    }
    void send() { get<QAction>("mnuTest").trigger(); }
    [[nodiscard]] FakeSmtp &client() { return side->trialClient; }
    [[nodiscard]] frmTest *box() const
    {
        for (frmTest *box : window->findChildren<frmTest *>()) {
            if (box->isVisible())
                return box;
        }
        return nullptr;
    }
};

} // namespace

void TestTestMessageBox::itGoesToTheSender()
{
    TestRig rig;
    rig.send();
    QCOMPARE(rig.client().connections, QStringList{u"mail.example.org:25"_s});
    rig.client().raiseReady();
    QCOMPARE(rig.client().sent.size(), 1);
    QCOMPARE(rig.client().sent.constFirst().message.RecipientAddress, u"club@example.org"_s);
    // The run knows nothing of it.
    QVERIFY(rig.core->smtp.calls.isEmpty());
    QCOMPARE(rig.core->w.form.runState(), RunState::Idle);
    QCOMPARE(rig.core->states(), QStringList({u"Waiting"_s, u"Waiting"_s, u"Waiting"_s}));
}

void TestTestMessageBox::itIsTheMessageOfTheCurrentRow_data()
{
    QTest::addColumn<int>("recipients");
    QTest::addColumn<int>("current");
    QTest::addColumn<QString>("greeting");
    QTest::newRow("the second row") << 3 << 2 << u"Dear Name 2,"_s;
    QTest::newRow("no current row: the first") << 3 << 0 << u"Dear Name 1,"_s;
    QTest::newRow("no rows: without a name") << 0 << 0 << u"Dear ,"_s;
}

void TestTestMessageBox::itIsTheMessageOfTheCurrentRow()
{
    QFETCH(int, recipients);
    QFETCH(int, current);
    QFETCH(QString, greeting);
    TestRig rig;
    rig.core->fillForm(recipients);
    if (current > 0)
        rig.get<RecipientView>("lstDestinatari").goTo(current);
    rig.send();
    rig.client().raiseReady();
    QVERIFY(rig.client().sent.constFirst().message.TextBody.startsWith(greeting));
}

void TestTestMessageBox::itNeedsTheSendersAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<Language>("language");
    QTest::addColumn<QString>("notice");
    QTest::newRow("none") << QString() << Language::English
                          << u"Fill in the sender's e-mail address: the test goes there."_s;
    QTest::newRow("none, Italian")
        << QString() << Language::Italian
        << u"Compilare l'indirizzo e-mail del mittente: la prova va lì."_s;
    QTest::newRow("no address") << u"club"_s << Language::English
                                << u"'club' isn't a valid e-mail address."_s;
    QTest::newRow("no address, Italian")
        << u"club"_s << Language::Italian << u"'club' non è un indirizzo e-mail valido."_s;
}

void TestTestMessageBox::itNeedsTheSendersAddress()
{
    QFETCH(QString, address);
    QFETCH(Language, language);
    QFETCH(QString, notice);
    TestRig rig(language);
    rig.core->w.form.setText(Control::txtEmailMittente, address);
    rig.send();
    const QList<Notice> notices = rig.core->prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.constFirst().icon, Icon::Exclamation);
    QCOMPARE(notices.constFirst().text, notice);
    QVERIFY(rig.client().calls.isEmpty());
    QVERIFY(!rig.box());
}

void TestTestMessageBox::itSaysThatItIsOnItsWay_data()
{
    addLanguages();
}

void TestTestMessageBox::itSaysThatItIsOnItsWay()
{
    QFETCH(Language, language);
    const bool isItalian = language == Language::Italian;
    TestRig rig(language);
    rig.send();
    QVERIFY(rig.box());
    QCOMPARE(rig.box()->windowTitle(), isItalian ? u"Messaggio di prova"_s : u"Test message"_s);
    QCOMPARE(rig.box()->findChild<QLabel *>()->text(),
             isItalian ? u"Invio di una prova a club@example.org..."_s
                       : u"Sending a test to club@example.org..."_s);
    QCOMPARE(rig.box()->findChild<QPushButton *>()->text(), u"Stop"_s);
    rig.client().raiseReady();
    QVERIFY(rig.box());
    rig.client().raiseDone(true);
    QVERIFY(!rig.box());
    QTRY_VERIFY(rig.window->findChildren<frmTest *>().isEmpty());
}

void TestTestMessageBox::itBlocksNothing()
{
    TestRig rig;
    rig.send();
    QVERIFY(!rig.box()->isModal());
    QTest::mouseClick(&rig.get<QPushButton>("cmdUncheckAll"), Qt::LeftButton);
    QTest::keyClicks(&rig.get<QLineEdit>("txtOggetto"), u" of May"_s);
    QVERIFY(rig.core->w.form.text(Control::txtOggetto).contains(u" of May"_s));
}

void TestTestMessageBox::theResultIsANotice_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accepted") << true;
    QTest::newRow("refused") << false;
}

void TestTestMessageBox::theResultIsANotice()
{
    QFETCH(bool, accepted);
    TestRig rig;
    rig.send();
    rig.client().raiseReady();
    ServerReply reply;
    reply.code = accepted ? 250 : 550;
    reply.text = u"so it is"_s;
    rig.client().raiseDone(accepted, {reply});
    const QList<Notice> notices = rig.core->prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.constFirst().title, u"Test message"_s);
    QCOMPARE(notices.constFirst().icon, accepted ? Icon::Information : Icon::Exclamation);
    QVERIFY(notices.constFirst().text.contains(u"so it is"_s));
}

void TestTestMessageBox::itCanBeStopped_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("Stop") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("the title bar") << 2;
}

void TestTestMessageBox::itCanBeStopped()
{
    QFETCH(int, way);
    TestRig rig;
    rig.send();
    if (way == 0)
        QTest::mouseClick(rig.box()->findChild<QPushButton *>(), Qt::LeftButton);
    else if (way == 1)
        QTest::keyClick(rig.box(), Qt::Key_Escape);
    else
        rig.box()->close();
    QVERIFY(!rig.box());
    QCOMPARE(rig.client().calls.constLast(), u"Disconnect"_s);
    QVERIFY(rig.core->prompts.takeNotices().isEmpty());
}

void TestTestMessageBox::itCanBeSentAgain()
{
    TestRig rig;
    rig.send();
    rig.core->w.form.setText(Control::txtEmailMittente, u"me@example.org"_s);
    rig.send();
    QCOMPARE(rig.window->findChildren<frmTest *>().size(), 1);
    QVERIFY(rig.box()->findChild<QLabel *>()->text().contains(u"me@example.org"_s));
    rig.client().raiseReady();
    rig.client().raiseDone(true);
    QCOMPARE(rig.core->prompts.takeNotices().size(), 1);
    // At once, while the closed box is still about to be deleted.
    rig.send();
    QTRY_COMPARE(rig.window->findChildren<frmTest *>().size(), 1);
    QVERIFY(rig.box());
}
