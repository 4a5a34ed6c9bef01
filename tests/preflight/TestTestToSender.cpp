#include "TestTestToSender.h"

#include "PreflightRig.h"
#include "preflight/TestToSender.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

struct Rig : PreflightRig
{
    Rig() { fillForm(3); }

    TestToSender toSender{w.form, prompts, test};
};

} // namespace

void TestTestToSender::itGoesToTheSendersAddress()
{
    Rig rig;
    const QSignalSpy changes(&rig.toSender, &TestToSender::addressChanged);
    rig.toSender.mnuTest_Click(2);
    QCOMPARE(rig.toSender.address(), u"club@example.org"_s);
    rig.trialClient.raiseReady();
    QCOMPARE(rig.trialClient.sent.size(), 1);
    const OutgoingMessage &message = rig.trialClient.sent.constFirst().message;
    QCOMPARE(message.RecipientAddress, u"club@example.org"_s);
    QVERIFY(message.TextBody.startsWith(u"Dear Name 2,"_s));
    rig.trialClient.raiseDone(true);
    QCOMPARE(rig.toSender.address(), QString());
    QCOMPARE(changes.count(), 2);
}

void TestTestToSender::senderWithoutAnAddressIsTold_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QString()
                          << u"Fill in the sender's e-mail address: the test goes there."_s;
    QTest::newRow("no address") << u"club"_s << u"'club' isn't a valid e-mail address."_s;
}

void TestTestToSender::senderWithoutAnAddressIsTold()
{
    QFETCH(QString, address);
    QFETCH(QString, text);
    Rig rig;
    rig.w.form.setText(Control::txtEmailMittente, address);
    rig.toSender.mnuTest_Click(1);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.constFirst().icon, Icon::Exclamation);
    QCOMPARE(notices.constFirst().text, text);
    QVERIFY(rig.trialClient.calls.isEmpty());
    QCOMPARE(rig.toSender.address(), QString());
}

void TestTestToSender::whatBecameOfItIsTold_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accepted") << true;
    QTest::newRow("refused") << false;
}

void TestTestToSender::whatBecameOfItIsTold()
{
    QFETCH(bool, accepted);
    Rig rig;
    rig.toSender.mnuTest_Click(1);
    rig.trialClient.raiseReady();
    QVERIFY(rig.prompts.takeNotices().isEmpty());
    rig.trialClient.raiseDone(accepted);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.constFirst().icon, accepted ? Icon::Information : Icon::Exclamation);
    QCOMPARE(notices.constFirst().title, u"Test message"_s);
}

void TestTestToSender::aTestThatIsStoppedSaysNothing()
{
    Rig rig;
    rig.toSender.mnuTest_Click(1);
    rig.trialClient.raiseReady();
    rig.toSender.cmdStop_Click();
    QCOMPARE(rig.toSender.address(), QString());
    rig.trialClient.raiseDone(true);
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestTestToSender::nothingOfTheProjectIsTouched()
{
    Rig rig;
    const QStringList states = rig.states();
    const Situation situation = rig.w.form.situation();
    rig.toSender.mnuTest_Click(1);
    rig.trialClient.raiseReady();
    rig.trialClient.raiseDone(false);
    QCOMPARE(rig.states(), states);
    QCOMPARE(rig.w.form.situation(), situation);
    QVERIFY(!rig.w.form.projectModified());
    QVERIFY(rig.smtp.calls.isEmpty());
}
