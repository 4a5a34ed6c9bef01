#include "TestAccountCommand.h"

#include "CliRig.h"
#include "cli/AccountCommand.h"

using namespace Qt::StringLiterals;

namespace {

const QString Host = u"mail.example.org"_s;

ExitCode run(CliRig &rig, const std::optional<QString> &name = {},
             const std::optional<QString> &value = {})
{
    return account({Host, name, value}, rig.surroundings());
}

} // namespace

void TestAccountCommand::withoutANameAllIsListed()
{
    CliRig rig;
    QCOMPARE(run(rig), ExitCode::Success);
    QCOMPARE(rig.results.lines(),
             (QStringList{u"User="_s, u"TokenCommand="_s, u"Pipelining=1"_s, u"Chunking=1"_s,
                          u"Trace=0"_s, u"TrustedCertificates="_s, u"StartTls="_s}));
}

void TestAccountCommand::oneValueIsRead()
{
    CliRig rig;
    ServerAccount kept;
    kept.user = u"club"_s;
    QVERIFY(rig.accounts.setAccount(Host, kept));
    QCOMPARE(run(rig, u"User"_s), ExitCode::Success);
    QCOMPARE(rig.results.lines(), QStringList{u"club"_s});
}

void TestAccountCommand::aValueIsSetAndKept()
{
    CliRig rig;
    QCOMPARE(run(rig, u"StartTls"_s, u"25 587"_s), ExitCode::Success);
    QCOMPARE(rig.accounts.account(Host).startTlsPorts, (QList<quint16>{25, 587}));
    QVERIFY(rig.results.lines().isEmpty());
}

void TestAccountCommand::anEmptyValueRevokesTheCertificates()
{
    CliRig rig;
    QVERIFY(rig.accounts.trust(Host, QByteArray(32, 'x')));
    QCOMPARE(run(rig, u"TrustedCertificates"_s, QString()), ExitCode::Success);
    QVERIFY(rig.accounts.account(Host).trustedCertificates.isEmpty());
}

void TestAccountCommand::anUnknownNameIsWrong()
{
    CliRig rig;
    QCOMPARE(run(rig, u"Password"_s), ExitCode::Refused);
    QCOMPARE(run(rig, u"Password"_s, u"secret"_s), ExitCode::Refused);
    QVERIFY(rig.messages.text().contains(u"There is no value \"Password\""_s));
    QVERIFY(rig.messages.text().contains(u"User, TokenCommand"_s));
    QVERIFY(!rig.messages.text().contains(u"secret"_s));
}

void TestAccountCommand::aValueThatMakesNoSenseChangesNothing()
{
    CliRig rig;
    QCOMPARE(run(rig, u"Pipelining"_s, u"2"_s), ExitCode::Refused);
    QCOMPARE(run(rig, u"StartTls"_s, u"25 smtp"_s), ExitCode::Refused);
    QCOMPARE(rig.accounts.account(Host), ServerAccount());
    QCOMPARE(rig.messages.lines().size(), 2);
}
