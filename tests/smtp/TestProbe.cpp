#include "smtp/TestProbe.h"

#include "smtp/ClientFakes.h"
#include "smtp/client/SmtpProbe.h"
#include "support/FakeServer.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A probe and what it has said.
struct Probing
{
    FakeServer server;
    ClientFakes fakes;
    SmtpProbe probe{fakes.surroundings({}, {.submission = server.port()})};
    QList<ServerReport> steps;
    QList<ServerReport> ends;

    Probing()
    {
        QObject::connect(&probe, &ServerProbe::progressed, &probe,
                         [this](const ServerReport &report) { steps += report; });
        QObject::connect(&probe, &ServerProbe::finished, &probe,
                         [this](const ServerReport &report) { ends += report; });
    }
    [[nodiscard]] ServerAddress address() const { return {u"127.0.0.1"_s, server.port()}; }
    [[nodiscard]] bool isOver() const
    {
        return FakeServer::waitUntil([this] { return !ends.isEmpty(); });
    }
};

} // namespace

void TestProbe::everyStep()
{
    Probing probing;
    FakeServer &server = probing.server;
    const QString certificate = QStringLiteral(SORVANTA_CERTIFICATES "/self-signed");
    server.useCertificate(certificate);
    const QByteArray fingerprint = server.fingerprint();
    probing.fakes.accounts.known.trustedCertificates = {fingerprint};
    probing.probe.begin(probing.address());
    QCOMPARE(server.takeConnection(), QString());
    server.say("220 mail.example at your service\r\n");
    QCOMPARE(server.hear("EHLO [127.0.0.1]\r\n"), QString());
    server.say("250-mail.example\r\n250 STARTTLS\r\n");
    QCOMPARE(server.hear("STARTTLS\r\n"), QString());
    server.encrypt("220 go ahead\r\n");
    QCOMPARE(server.awaitEncryption(), QString());
    QCOMPARE(server.hear("EHLO [127.0.0.1]\r\n"), QString());
    server.say("250-mail.example\r\n250-SIZE 1000\r\n250 AUTH PLAIN\r\n");
    QVERIFY(FakeServer::waitUntil([&] { return probing.fakes.logins.isAsked(); }));
    probing.fakes.logins.answer(Login{Login::Kind::Password, u"anna"_s, u"secret"_s});
    QCOMPARE(server.hear("AUTH PLAIN AGFubmEAc2VjcmV0\r\n"), QString());
    server.say("235 welcome\r\n");
    QCOMPARE(server.hear("QUIT\r\n"), QString());
    QVERIFY(probing.isOver());

    QList<ServerStep> steps;
    for (const ServerReport &report : probing.steps)
        steps += report.reached;
    QCOMPARE(steps, QList<ServerStep>({ServerStep::Found, ServerStep::Connected,
                                       ServerStep::Encrypted, ServerStep::Ready}));
    const ServerReport &report = probing.ends.constFirst();
    QCOMPARE(report.failure, QString());
    QCOMPARE(report.addresses, QStringList{u"127.0.0.1"_s});
    QCOMPARE(report.address, u"127.0.0.1"_s);
    QCOMPARE(report.greeting, u"mail.example at your service"_s);
    QVERIFY2(report.encryption.startsWith(u"TLSv1.3, "), qPrintable(report.encryption));
    QCOMPARE(report.certificate->standing, ServerCertificate::Standing::Trusted);
    QCOMPARE(report.certificate->fingerprint, fingerprint);
    QCOMPARE(report.extensions, QStringList({u"SIZE 1000"_s, u"AUTH PLAIN"_s}));
    QCOMPARE(report.largestMessage, 1000);
    QCOMPARE(report.login, LoginState::Accepted);
    QCOMPARE(report.loginMechanism, u"PLAIN"_s);
    QCOMPARE(report.loginUser, u"anna"_s);
    QCOMPARE(probing.ends.size(), 1);
}

void TestProbe::nothingListens()
{
    Probing probing;
    const ServerAddress nobody{u"127.0.0.1"_s, FakeServer::closedPort()};
    probing.probe.begin(nobody);
    QVERIFY(probing.isOver());
    QCOMPARE(probing.ends.constFirst().failureNumber, SmtpErrorNumber::CannotConnect);
    QVERIFY(probing.ends.constFirst().failure.startsWith(u"the connection failed: "));
    QCOMPARE(probing.ends.constFirst().reached, ServerStep::Found);
}

void TestProbe::noSuchHost()
{
    for (const QString &host : {u"no such host"_s, QString()}) {
        Probing probing;
        probing.probe.begin({host, 25});
        QVERIFY(probing.isOver());
        QVERIFY2(probing.ends.constFirst().failure.startsWith(u"there is no such server: "),
                 qPrintable(probing.ends.constFirst().failure));
        QCOMPARE(probing.ends.constFirst().reached, ServerStep::Looking);
    }
}

void TestProbe::giveUpSaysNothingMore()
{
    Probing probing;
    probing.probe.begin(probing.address());
    QCOMPARE(probing.server.takeConnection(), QString());
    probing.probe.giveUp();
    QCOMPARE(probing.server.hear(FakeServer::Closed.toByteArray()), QString());
    QVERIFY(probing.ends.isEmpty());
}

void TestProbe::anotherOneIsBegun()
{
    Probing probing;
    probing.probe.begin(probing.address());
    QCOMPARE(probing.server.takeConnection(), QString());
    probing.probe.begin(probing.address());
    QCOMPARE(probing.server.hear(FakeServer::Closed.toByteArray()), QString());
    QCOMPARE(probing.server.takeConnection(), QString());
    probing.server.say("554 go away\r\n");
    QVERIFY(probing.isOver());
    QCOMPARE(probing.ends.constFirst().failure, u"the server refuses: 554 go away"_s);
    QCOMPARE(probing.ends.size(), 1);
}
