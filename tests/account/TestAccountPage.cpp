#include "TestAccountPage.h"

#include "account/AccountPage.h"
#include "settings/RegFileStore.h"
#include "support/DiskFiles.h"
#include "support/FakePasswordStore.h"
#include "support/FakeProbe.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString Host = u"smtp.example.org"_s;
const QString KeyOfAnna = u"anna@smtp.example.org"_s;
const QString KeyOfBruno = u"bruno@smtp.example.org"_s;
const QByteArray Fingerprint(32, '\xab');

/// A page, and what it works on.
struct Rig
{
    explicit Rig(const ServerAccount &account = {})
    {
        accounts.setAccount(Host, account);
        open();
    }
    void open()
    {
        page = std::make_unique<AccountPage>(ServerAddress{Host, 587}, accounts, passwords, probe);
        kept = std::make_unique<QSignalSpy>(page.get(), &AccountPage::kept);
        failed = std::make_unique<QSignalSpy>(page.get(), &AccountPage::failed);
        settle();
    }
    static void settle() { QCoreApplication::processEvents(); }
    void keep(const AccountEntries &entries) const
    {
        page->keep(entries);
        settle();
    }
    void test(const AccountEntries &entries = {}) const
    {
        page->test(entries);
        settle();
    }
    [[nodiscard]] ServerAccount account() const { return accounts.account(Host); }

    QTemporaryDir folder;
    QString file = folder.filePath(u"settings.reg"_s);
    CodePage codePage{"windows-1252"};
    RegFileStore store{file.toStdString()};
    Accounts accounts{store, codePage};
    FakePasswordStore passwords;
    FakeProbe probe;
    std::unique_ptr<AccountPage> page;
    std::unique_ptr<QSignalSpy> kept;
    std::unique_ptr<QSignalSpy> failed;
};

ServerAccount accountOfAnna()
{
    ServerAccount account;
    account.user = u"anna"_s;
    account.trustedCertificates = {Fingerprint, QByteArray(32, '\x01')};
    account.startTlsPorts = {25, 587};
    return account;
}

AccountEntries entriesFor(const QString &user, const QString &password = {})
{
    AccountEntries entries;
    entries.user = user;
    entries.password = password;
    return entries;
}

ServerReport reportWith(ServerCertificate::Standing standing, const QByteArray &fingerprint)
{
    ServerReport report;
    ServerCertificate certificate;
    certificate.standing = standing;
    certificate.fingerprint = fingerprint;
    report.certificate = certificate;
    return report;
}

} // namespace

void TestAccountPage::itBeginsWithWhatIsKept()
{
    ServerAccount account = accountOfAnna();
    account.tokenCommand = u"token --for anna"_s;
    account.usePipelining = false;
    account.writeTrace = true;
    const Rig rig(account);
    const AccountEntries entries = rig.page->entries();
    QCOMPARE(entries.user, u"anna"_s);
    QCOMPARE(entries.password, QString());
    QCOMPARE(entries.tokenCommand, u"token --for anna"_s);
    QVERIFY(!entries.usePipelining);
    QVERIFY(entries.useChunking);
    QVERIFY(entries.writeTrace);
    QCOMPARE(rig.page->certificates(), account.trustedCertificates);
    QCOMPARE(rig.page->startTlsPorts(), account.startTlsPorts);
    QVERIFY(!rig.page->isBusy());
    QVERIFY(!rig.page->report());
}

void TestAccountPage::whatIsEnteredIsKept()
{
    const Rig rig;
    rig.keep({u"anna"_s, {}, u"token"_s, false, false, true});
    QCOMPARE(rig.kept->count(), 1);
    QCOMPARE(rig.account().user, u"anna"_s);
    QCOMPARE(rig.account().tokenCommand, u"token"_s);
    QVERIFY(!rig.account().usePipelining);
    QVERIFY(!rig.account().useChunking);
    QVERIFY(rig.account().writeTrace);
}

void TestAccountPage::nothingIsKeptBeforeItIsWanted()
{
    Rig rig(accountOfAnna());
    rig.passwords.passwords.insert(KeyOfAnna, u"secret"_s);
    rig.page->removeCertificate(Fingerprint);
    rig.page->forgetStartTls(587);
    rig.page->forgetPassword();
    QCOMPARE(rig.page->certificates().size(), 1);
    QCOMPARE(rig.page->startTlsPorts(), QList<quint16>{25});
    QVERIFY(rig.page->forgetsPassword());
    rig.page.reset();
    Rig::settle();
    QCOMPARE(rig.account(), accountOfAnna());
    QCOMPARE(rig.passwords.passwords.size(), 1);
}

void TestAccountPage::linesPastedIntoAFieldBecomeOne()
{
    const Rig rig;
    rig.keep({u" anna\nbianchi "_s, {}, u"token\r\n--for anna"_s});
    QCOMPARE(rig.account().user, u"anna bianchi"_s);
    QCOMPARE(rig.account().tokenCommand, u"token --for anna"_s);
}

void TestAccountPage::whatASessionLearntMeanwhileStays()
{
    Rig rig(accountOfAnna());
    rig.page->removeCertificate(Fingerprint);
    rig.accounts.rememberStartTls({Host, 2525});
    rig.accounts.trust(Host, QByteArray(32, '\x02'));
    rig.keep(rig.page->entries());
    QCOMPARE(rig.account().startTlsPorts, QList<quint16>({25, 587, 2525}));
    QCOMPARE(rig.account().trustedCertificates,
             QList<QByteArray>({QByteArray(32, '\x01'), QByteArray(32, '\x02')}));
}

void TestAccountPage::whatIsRemovedIsRemovedOnceItIsKept()
{
    Rig rig(accountOfAnna());
    rig.page->removeCertificate(Fingerprint);
    rig.page->forgetStartTls(587);
    rig.keep(rig.page->entries());
    QCOMPARE(rig.account().trustedCertificates, QList<QByteArray>{QByteArray(32, '\x01')});
    QCOMPARE(rig.account().startTlsPorts, QList<quint16>{25});
    // What comes back later is shown again.
    rig.accounts.trust(Host, Fingerprint);
    rig.accounts.rememberStartTls({Host, 587});
    QVERIFY(rig.page->certificates().contains(Fingerprint));
    QVERIFY(rig.page->startTlsPorts().contains(587));
}

void TestAccountPage::passwordOrTokenWithoutAUserIsRefused_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("command");
    QTest::newRow("password") << u"secret"_s << QString();
    QTest::newRow("token") << QString() << u"token"_s;
}

void TestAccountPage::passwordOrTokenWithoutAUserIsRefused()
{
    QFETCH(QString, password);
    QFETCH(QString, command);
    const Rig rig(accountOfAnna());
    rig.keep({u" "_s, password, command});
    QCOMPARE(rig.kept->count(), 0);
    QCOMPARE(rig.failed->count(), 1);
    QCOMPARE(rig.failed->front().front().toString(),
             u"Enter the user too: a password or a token belongs to somebody."_s);
    QCOMPARE(rig.account(), accountOfAnna());
    QVERIFY(rig.passwords.passwords.isEmpty());
}

void TestAccountPage::settingsThatCannotBeWrittenAreSaid()
{
    const Rig rig;
    QVERIFY(QFile::remove(rig.file));
    QVERIFY(QDir().mkpath(rig.file));
    rig.keep(entriesFor(u"anna"_s));
    QCOMPARE(rig.kept->count(), 0);
    QCOMPARE(rig.failed->count(), 1);
    QCOMPARE(rig.failed->front().front().toString(), u"The settings cannot be written."_s);
    QVERIFY(!rig.page->isBusy());
}

void TestAccountPage::keyringIsAskedForWithoutReadingIt()
{
    Rig rig;
    for (const bool available : {true, false}) {
        rig.passwords.available = available;
        rig.page = std::make_unique<AccountPage>(ServerAddress{Host, 587}, rig.accounts,
                                                 rig.passwords, rig.probe);
        const QSignalSpy changes(rig.page.get(), &AccountPage::changed);
        QVERIFY(!rig.page->hasKeyring());
        Rig::settle();
        QCOMPARE(changes.count(), 1);
        QCOMPARE(rig.page->hasKeyring(), std::optional<bool>(available));
    }
    QCOMPARE(rig.passwords.reads, QStringList());
}

void TestAccountPage::passwordGoesIntoTheKeyringAndNowhereElse()
{
    const Rig rig;
    rig.keep(entriesFor(u"anna"_s, u" se cret "_s));
    QCOMPARE(rig.kept->count(), 1);
    QCOMPARE(rig.passwords.passwords.value(KeyOfAnna), u" se cret "_s);
    QVERIFY(!readFile(rig.file).contains("se cret"));
    QCOMPARE(rig.page->entries().password, QString());
}

void TestAccountPage::passwordThatIsNotTypedStaysAsItIs()
{
    Rig rig(accountOfAnna());
    rig.passwords.passwords.insert(KeyOfAnna, u"secret"_s);
    rig.keep(entriesFor(u"anna"_s));
    QCOMPARE(rig.kept->count(), 1);
    QCOMPARE(rig.passwords.passwords.value(KeyOfAnna), u"secret"_s);
}

void TestAccountPage::passwordIsForgottenForTheUserThatIsKept()
{
    Rig rig(accountOfAnna());
    rig.passwords.passwords.insert(KeyOfAnna, u"secret"_s);
    rig.passwords.passwords.insert(KeyOfBruno, u"his"_s);
    rig.page->forgetPassword();
    rig.keep(entriesFor(u"bruno"_s));
    QCOMPARE(rig.kept->count(), 1);
    QVERIFY(!rig.passwords.passwords.contains(KeyOfAnna));
    QVERIFY(rig.passwords.passwords.contains(KeyOfBruno));
    QVERIFY(!rig.page->forgetsPassword());
    QCOMPARE(rig.account().user, u"bruno"_s);
}

void TestAccountPage::newPasswordTakesThePlaceOfAForgottenOne()
{
    Rig rig(accountOfAnna());
    rig.passwords.passwords.insert(KeyOfAnna, u"old"_s);
    rig.page->forgetPassword();
    rig.page->keep(entriesFor(u"anna"_s, u"new"_s));
    QTRY_COMPARE(rig.kept->count(), 1);
    QCOMPARE(rig.passwords.passwords.value(KeyOfAnna), u"new"_s);
}

void TestAccountPage::keyringThatFailsIsSaidAndCanBeTriedAgain()
{
    Rig rig(accountOfAnna());
    rig.passwords.failure = u"the keyring is locked"_s;
    rig.keep(entriesFor(u"bruno"_s, u"secret"_s));
    QCOMPARE(rig.failed->count(), 1);
    QCOMPARE(rig.failed->front().front().toString(), u"the keyring is locked"_s);
    QCOMPARE(rig.kept->count(), 0);
    QVERIFY(!rig.page->isBusy());
    QCOMPARE(rig.account(), accountOfAnna());

    rig.passwords.failure.clear();
    rig.keep(entriesFor(u"bruno"_s, u"secret"_s));
    QCOMPARE(rig.kept->count(), 1);
    QCOMPARE(rig.passwords.passwords.value(KeyOfBruno), u"secret"_s);
    QCOMPARE(rig.account().user, u"bruno"_s);
}

void TestAccountPage::answerOfTheKeyringAfterThePageIsGoneChangesNothing()
{
    Rig rig;
    rig.page->keep(entriesFor(u"anna"_s, u"secret"_s));
    QVERIFY(rig.page->isBusy());
    rig.page.reset();
    Rig::settle();
    QCOMPARE(rig.account(), ServerAccount());
}

void TestAccountPage::testKeepsThenAsksTheServer()
{
    Rig rig;
    rig.page->test(entriesFor(u"anna"_s, u"secret"_s));
    QVERIFY(rig.page->isBusy());
    QVERIFY(rig.probe.begun.isEmpty());
    Rig::settle();
    QCOMPARE(rig.probe.begun, QList<ServerAddress>({{Host, 587}}));
    QVERIFY(rig.page->isTesting());
    QCOMPARE(rig.account().user, u"anna"_s);
    QCOMPARE(rig.passwords.passwords.value(KeyOfAnna), u"secret"_s);
    QCOMPARE(rig.kept->count(), 0);
}

void TestAccountPage::testThatCannotKeepDoesNotAsk()
{
    const Rig rig;
    rig.test(entriesFor({}, u"secret"_s));
    QCOMPARE(rig.failed->count(), 1);
    QVERIFY(rig.probe.begun.isEmpty());
    QVERIFY(!rig.page->isBusy());
}

void TestAccountPage::reportGrowsAsItComes()
{
    Rig rig;
    rig.test();
    const QSignalSpy changes(rig.page.get(), &AccountPage::changed);
    ServerReport report;
    report.reached = ServerStep::Connected;
    rig.probe.raiseProgressed(report);
    QCOMPARE(rig.page->report()->reached, ServerStep::Connected);
    QVERIFY(rig.page->isTesting());
    report.reached = ServerStep::Ready;
    rig.probe.raiseFinished(report);
    QCOMPARE(rig.page->report()->reached, ServerStep::Ready);
    QVERIFY(!rig.page->isBusy());
    QCOMPARE(changes.count(), 2);
    rig.test();
    QVERIFY(!rig.page->report());
}

void TestAccountPage::stoppedTestSaysNoMore()
{
    Rig rig;
    rig.page->stopTest();
    QCOMPARE(rig.probe.timesGivenUp, 0);
    rig.test();
    rig.page->stopTest();
    QCOMPARE(rig.probe.timesGivenUp, 1);
    QVERIFY(!rig.page->isBusy());
}

void TestAccountPage::testIsGivenUpWithThePage()
{
    Rig rig;
    rig.page.reset();
    QCOMPARE(rig.probe.timesGivenUp, 0);
    rig.open();
    rig.test();
    rig.page.reset();
    QCOMPARE(rig.probe.timesGivenUp, 1);
}

void TestAccountPage::nothingElseBeginsDuringATest()
{
    const Rig rig;
    rig.test();
    rig.test();
    rig.keep(entriesFor(u"anna"_s));
    QCOMPARE(rig.probe.begun.size(), 1);
    QCOMPARE(rig.kept->count(), 0);
    QCOMPARE(rig.account(), ServerAccount());
}

void TestAccountPage::refusedCertificateCanBeTrustedAndIsTestedAgain()
{
    Rig rig(accountOfAnna());
    rig.page->removeCertificate(Fingerprint);
    rig.test(entriesFor(u"anna"_s));
    const ServerReport report = reportWith(ServerCertificate::Standing::Refused, Fingerprint);
    rig.probe.raiseProgressed(report);
    QVERIFY(!rig.page->canTrust());
    rig.probe.raiseFinished(report);
    QVERIFY(rig.page->canTrust());
    rig.page->removeCertificate(Fingerprint);
    rig.page->trust(entriesFor(u"bruno"_s));
    Rig::settle();
    QVERIFY(rig.account().trustedCertificates.contains(Fingerprint));
    QVERIFY(rig.page->certificates().contains(Fingerprint));
    QCOMPARE(rig.account().user, u"bruno"_s);
    QCOMPARE(rig.probe.begun.size(), 2);
    QVERIFY(!rig.page->canTrust());
}

void TestAccountPage::onlyARefusedCertificateCanBeTrusted_data()
{
    using Standing = ServerCertificate::Standing;
    QTest::addColumn<ServerReport>("report");
    QTest::newRow("none") << ServerReport();
    QTest::newRow("verified") << reportWith(Standing::Verified, Fingerprint);
    QTest::newRow("trusted") << reportWith(Standing::Trusted, Fingerprint);
    QTest::newRow("unchecked") << reportWith(Standing::Unchecked, Fingerprint);
    QTest::newRow("without a fingerprint") << reportWith(Standing::Refused, {});
}

void TestAccountPage::onlyARefusedCertificateCanBeTrusted()
{
    QFETCH(ServerReport, report);
    Rig rig;
    rig.test();
    rig.probe.raiseFinished(report);
    QVERIFY(!rig.page->canTrust());
    rig.page->trust({});
    Rig::settle();
    QCOMPARE(rig.account(), ServerAccount());
    QCOMPARE(rig.probe.begun.size(), 1);
}
