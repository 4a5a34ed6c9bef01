#include "TestAccounts.h"

#include "account/Accounts.h"
#include "settings/IOReg.h"
#include "settings/RegFileStore.h"
#include "settings/Settings.h"
#include "smtp/ServerReport.h"
#include "support/DiskFiles.h"
#include "support/FileSizeLimit.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Rig
{
    QTemporaryDir folder;
    QString file = folder.filePath(u"settings.reg"_s);
    CodePage codePage{"windows-1252"};
    RegFileStore store{file.toStdString()};
    Accounts accounts{store, codePage};
};

ServerAccount exampleAccount()
{
    ServerAccount account;
    account.user = u"ženský@example.org"_s;
    account.tokenCommand = u"/usr/bin/token --for \"a b\" \\n"_s;
    account.usePipelining = false;
    account.useChunking = false;
    account.writeTrace = true;
    account.trustedCertificates = {QByteArray(32, '\xab'), QByteArray(32, '\0')};
    account.startTlsPorts = {587, 25};
    return account;
}

} // namespace

void TestAccounts::unknownHostHasTheDefaults()
{
    const Rig rig;
    const ServerAccount account = rig.accounts.account(u"mail.example.org"_s);
    QCOMPARE(account, ServerAccount());
    QVERIFY(account.usePipelining);
    QVERIFY(account.useChunking);
    QVERIFY(!account.writeTrace);
}

void TestAccounts::whatIsKeptIsThereInTheNextRun()
{
    Rig rig;
    QVERIFY(rig.accounts.setAccount(u"mail.example.org"_s, exampleAccount()));
    RegFileStore storeOfNextRun(rig.file.toStdString());
    const Accounts next(storeOfNextRun, rig.codePage);
    QCOMPARE(next.account(u"mail.example.org"_s), exampleAccount());
    QVERIFY(readFile(rig.file).contains(
        "[HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta\\Servers\\mail.example.org]"));
}

void TestAccounts::hostIsTheSameInWhateverCase()
{
    Rig rig;
    for (const auto &[host, same] : {std::pair(u"Mail.EXAMPLE.org"_s, u"mail.example.ORG"_s),
                                     {u"MÜHLE.de"_s, u"mühle.DE"_s}}) {
        QVERIFY(rig.accounts.setAccount(host, exampleAccount()));
        QCOMPARE(rig.accounts.account(same), exampleAccount());
    }
}

void TestAccounts::hostsHaveNothingInCommon()
{
    Rig rig;
    QVERIFY(rig.accounts.setAccount(u"mail.example.org"_s, exampleAccount()));
    for (const char *other : {"example.org", "mail.example.or", "smtp.mail.example.org", "mail"})
        QCOMPARE(rig.accounts.account(QString::fromLatin1(other)), ServerAccount());
}

void TestAccounts::noHostClimbsOutOfItsKey_data()
{
    QTest::addColumn<QString>("host");
    for (const char *host : {"\\", "..\\Sorvanta", "a\\b", "\\\\a", "a\\", "a]", "[a", "::1", "a/b",
                             "a\"b", "a b", "a%5Cb", "a\r\n[HKEY_CURRENT_USER\\Software]", "a\tb"})
        QTest::newRow(host) << QString::fromLatin1(host);
}

void TestAccounts::noHostClimbsOutOfItsKey()
{
    QFETCH(const QString, host);
    Rig rig;
    QVERIFY(rig.accounts.setAccount(host, exampleAccount()));
    QCOMPARE(rig.accounts.account(host), exampleAccount());
    const QList<QByteArray> lines = readFile(rig.file).split('\n');
    const QByteArray parent = "[HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta\\Servers\\";
    int keys = 0;
    for (const QByteArray &line : lines) {
        if (!line.startsWith('['))
            continue;
        ++keys;
        QVERIFY2(line.startsWith(parent), line.constData());
        QVERIFY2(!line.mid(parent.size()).contains('\\'), line.constData());
    }
    QCOMPARE(keys, 1);
}

void TestAccounts::hostWithoutANameIsNotKept()
{
    Rig rig;
    QVERIFY(!rig.accounts.setAccount({}, exampleAccount()));
    rig.accounts.rememberStartTls({{}, 25});
    QCOMPARE(rig.accounts.account({}), ServerAccount());
    QVERIFY(!QFile::exists(rig.file));
}

void TestAccounts::contentThatMakesNoSenseCountsAsAbsent()
{
    const Rig rig;
    writeFile(rig.file, "REGEDIT4\r\n\r\n"
                        "[HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta\\Servers\\h]\r\n"
                        "\"User\"=hex(1):61,0d,0a,62,00\r\n"
                        "\"TokenCommand\"=dword:0a0a0a0a\r\n"
                        "\"Pipelining\"=dword:ffffffff\r\n"
                        "\"Chunking\"=\"no\"\r\n"
                        "\"Trace\"=dword:00000002\r\n"
                        "\"TrustedCertificates\"=\"00:11 all\"\r\n"
                        "\"StartTls\"=\"-1 99999999999999999999\"\r\n");
    QCOMPARE(rig.accounts.account(u"h"_s), ServerAccount());
}

void TestAccounts::offeredEncryptionIsRememberedOnceForEachPort()
{
    Rig rig;
    rig.accounts.rememberStartTls({u"h"_s, 587});
    rig.accounts.rememberStartTls({u"h"_s, 25});
    const QByteArray before = readFile(rig.file);
    rig.accounts.rememberStartTls({u"H"_s, 587});
    QCOMPARE(rig.accounts.account(u"h"_s).startTlsPorts, QList<quint16>({587, 25}));
    QCOMPARE(readFile(rig.file), before);
}

void TestAccounts::trustIsForOneCertificateAndCanBeTakenBack()
{
    Rig rig;
    const QByteArray one(32, 'a');
    const QByteArray two(32, 'b');
    QVERIFY(rig.accounts.trust(u"h"_s, one));
    QVERIFY(rig.accounts.trust(u"h"_s, two));
    QVERIFY(rig.accounts.trust(u"h"_s, one));
    QCOMPARE(rig.accounts.account(u"h"_s).trustedCertificates, QList({one, two}));
    ServerAccount account = rig.accounts.account(u"h"_s);
    account.trustedCertificates.removeOne(one);
    QVERIFY(rig.accounts.setAccount(u"h"_s, account));
    QCOMPARE(rig.accounts.account(u"h"_s).trustedCertificates, QList({two}));
    account.trustedCertificates.clear();
    QVERIFY(rig.accounts.setAccount(u"h"_s, account));
    QCOMPARE(rig.accounts.account(u"h"_s), ServerAccount());
}

void TestAccounts::onlyWhatDiffersIsWritten()
{
    Rig rig;
    QVERIFY(rig.accounts.setAccount(u"h"_s, {}));
    ServerAccount account = rig.accounts.account(u"h"_s);
    account.user = u"me"_s;
    QVERIFY(rig.accounts.setAccount(u"h"_s, account));
    const QByteArray content = readFile(rig.file);
    QVERIFY(content.contains("\"User\"=\"me\""));
    for (const char *other : {"TokenCommand", "Pipelining", "Trusted", "StartTls"})
        QVERIFY2(!content.contains(other), other);
}

void TestAccounts::fileThatCannotBeWrittenIsSaid()
{
    Rig rig;
    // A folder in the file's place: not even the administrator writes there.
    QVERIFY(QDir().mkpath(rig.file));
    QVERIFY(!rig.accounts.setAccount(u"h"_s, exampleAccount()));
    QVERIFY(!rig.accounts.trust(u"h"_s, QByteArray(32, 'a')));
    QCOMPARE(rig.accounts.account(u"h"_s), ServerAccount());
}

void TestAccounts::fullDiskIsSaidAndLeavesWhatIsTrusted()
{
    Rig rig;
    const QByteArray first(32, 'a');
    const QByteArray second(32, 'b');
    QVERIFY(rig.accounts.trust(u"h"_s, first));
    const QByteArray before = readFile(rig.file);
    const qsizetype added = fingerprintText(second).size() + 1;
    forEachFullDisk(before.size() + added, [&](rlim_t room) {
        const bool isKept = [&] {
            const FileSizeLimit full(room);
            return rig.accounts.trust(u"h"_s, second);
        }();
        QVERIFY(!isKept);
        QCOMPARE(readFile(rig.file), before);
    });
    QVERIFY(rig.accounts.trust(u"h"_s, second));
    QCOMPARE(readFile(rig.file).size(), before.size() + added);
    QCOMPARE(rig.accounts.account(u"h"_s).trustedCertificates, (QList<QByteArray>{first, second}));
}
