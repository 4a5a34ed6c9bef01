#include "TestAccountTrial.h"

#include "AccountDriver.h"
#include "smtp/ServerReportText.h"
#include "ui/frmAccesso.h"

#include <QClipboard>

using namespace Qt::StringLiterals;

namespace {

using AccountBoxRig = AccountRigOf<BoxRig>;

const QString &Host = AccountRig::Host;
const QByteArray &Fingerprint = AccountRig::Fingerprint;

QStringList textsOf(const QList<ReportLine> &lines)
{
    QStringList texts;
    for (const ReportLine &line : lines)
        texts.append(line.label + u": "_s + line.text);
    return texts;
}

} // namespace

void TestAccountTrial::theTestShowsItsLinesAsTheyCome()
{
    AccountRig rig;
    rig.open();
    QCOMPARE(rig.reportLines(), QStringList());
    rig.press("cmdTest");
    QCOMPARE(rig.probe().begun, QList<ServerAddress>({{Host, 587}}));
    QVERIFY(rig.in<QPushButton>("cmdStopTest").isVisible());
    QVERIFY(!rig.in<QPushButton>("cmdTest").isEnabled());
    ServerReport report;
    report.server = {Host, 587};
    report.reached = ServerStep::Found;
    report.addresses = QStringList{u"192.0.2.1"_s};
    rig.probe().raiseProgressed(report);
    QCOMPARE(rig.reportLines(), textsOf(linesOf(report)));
    QCOMPARE(rig.reportLines().size(), 1);
    rig.probe().raiseFinished(rig.report());
    QCOMPARE(rig.reportLines(), textsOf(linesOf(rig.report())));
    QVERIFY(rig.reportLines().size() > 3);
    QVERIFY(!rig.in<QPushButton>("cmdStopTest").isVisible());
    QVERIFY(rig.in<QPushButton>("cmdTest").isEnabled());
}

void TestAccountTrial::goodAndBadAreToldApartWithoutColour()
{
    AccountRig rig;
    rig.open();
    rig.press("cmdTest");
    rig.probe().raiseFinished(rig.reportOfRefusedCertificate());
    const QList<ShownLine> &lines = rig.in<LineList>("lstReport").lines();
    QVERIFY(lines.constFirst().spoken.startsWith(u"Good. "_s));
    QCOMPARE(lines.constFirst().picture, "good");
    QVERIFY(lines.constLast().spoken.startsWith(u"Bad. "_s));
    QCOMPARE(lines.constLast().picture, "bad");
    const auto &list = rig.in<LineList>("lstReport");
    QCOMPARE(list.item(0)->data(Qt::AccessibleTextRole).toString(), lines.constFirst().spoken);
    QVERIFY(!list.item(0)->icon().isNull());
}

void TestAccountTrial::linesCanBeCopiedWhole()
{
    AccountRig rig;
    rig.open();
    rig.press("cmdTest");
    const ServerReport report = rig.reportOfRefusedCertificate();
    rig.probe().raiseFinished(report);
    auto &list = rig.in<LineList>("lstReport");
    list.selectAll();
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), textsOf(linesOf(report)).join(u'\n'));
    QVERIFY(QGuiApplication::clipboard()->text().contains(fingerprintText(Fingerprint)));
}

void TestAccountTrial::theTestCanBeStopped()
{
    AccountRig rig;
    rig.open();
    rig.press("cmdTest");
    rig.press("cmdStopTest");
    QCOMPARE(rig.probe().timesGivenUp, 1);
    QVERIFY(rig.in<QPushButton>("cmdTest").isEnabled());
    QVERIFY(!rig.in<QPushButton>("cmdStopTest").isVisible());
}

void TestAccountTrial::theTestKeepsWhatWasEntered()
{
    AccountRig rig;
    rig.open();
    rig.in<QLineEdit>("txtUser").setText(u"anna"_s);
    rig.in<QLineEdit>("txtPassword").setText(u"secret"_s);
    rig.press("cmdTest");
    QTRY_COMPARE(rig.probe().begun.size(), 1);
    QCOMPARE(rig.account().user, u"anna"_s);
    QCOMPARE(rig.side->passwords.passwords.value(u"anna@smtp.example.org"_s), u"secret"_s);
    QCOMPARE(rig.in<QLineEdit>("txtPassword").text(), QString());
}

void TestAccountTrial::aRefusedCertificateCanBeTrusted()
{
    AccountRig rig;
    rig.open();
    rig.press("cmdTest");
    rig.probe().raiseFinished(rig.reportOfRefusedCertificate());
    QVERIFY(rig.in<QPushButton>("cmdTrust").isVisible());
    rig.press("cmdTrust");
    QCOMPARE(rig.account().trustedCertificates, QList<QByteArray>{Fingerprint});
    QCOMPARE(rig.in<LineList>("lstCertificates").count(), 1);
    QCOMPARE(rig.probe().begun.size(), 2);
    QVERIFY(!rig.in<QPushButton>("cmdTrust").isVisible());
}

void TestAccountTrial::closingGivesTheTestUp()
{
    AccountRig rig;
    rig.open();
    rig.press("cmdTest");
    const QPointer<FakeProbe> probe = &rig.probe();
    QTest::keyClick(rig.page(), Qt::Key_Escape);
    QCOMPARE(probe->timesGivenUp, 1);
    QTRY_VERIFY(!probe);
}

void TestAccountTrial::twoServersAreTestedAtOnce()
{
    AccountRig rig;
    rig.open();
    rig.press("cmdTest");
    const frmAccount *const first = rig.page();
    FakeProbe &probe = rig.probe();
    rig.core->w.form.setText(Control::txtServer, u"mail.example.net"_s);
    rig.open();
    QVERIFY(rig.page() != first);
    rig.press("cmdTest");
    rig.probe().raiseFinished(rig.report());
    QVERIFY(probe.isRunning());
    QCOMPARE(first->findChild<LineList *>(u"lstReport"_s)->count(), 0);
    probe.raiseFinished(probe.goodReport());
    QVERIFY(first->findChild<LineList *>(u"lstReport"_s)->count() > 0);
}

void TestAccountTrial::itsLoginBoxCanBeUsedAndClosesWithTheTest()
{
    AccountBoxRig rig;
    rig.open();
    rig.press("cmdTest");
    int answers = 0;
    const auto ask = [&rig, &answers] {
        rig.core->prompts.askLogin(
            {u"smtp.example.org:587"_s, u"anna"_s, {}, true},
            [&probe = rig.probe()] { return probe.isRunning(); },
            [&answers](const auto &) { ++answers; });
    };
    ask();
    QTRY_VERIFY(rig.shown<frmAccesso>("frmAccesso"));
    QVERIFY(QTest::qWaitForWindowActive(rig.shown<frmAccesso>("frmAccesso")));
    QTest::keyClick(rig.shown<frmAccesso>("frmAccesso")->windowHandle(), Qt::Key_X);
    QTest::keyClick(rig.shown<frmAccesso>("frmAccesso")->windowHandle(), Qt::Key_Return);
    QTRY_COMPARE(answers, 1);

    ask();
    QTRY_VERIFY(rig.shown<frmAccesso>("frmAccesso"));
    rig.press("cmdStopTest");
    rig.core->prompts.closeStale(); // as whoever asked does when nobody waits any more
    QVERIFY(!rig.shown<frmAccesso>("frmAccesso"));
    QCOMPARE(answers, 1);
}
