#include "smtp/TestServerReportText.h"

#include "smtp/ServerReportText.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// "+" for good, "." for a note, "!" for bad.
QStringList shown(const ServerReport &report)
{
    QStringList all;
    for (const ReportLine &line : linesOf(report)) {
        constexpr QStringView Marks = u"+.!";
        all += Marks.at(static_cast<qsizetype>(line.kind)) + line.label + u" | "_s + line.text;
    }
    return all;
}

ServerReport begun()
{
    ServerReport report;
    report.server = {u"mail.example.org"_s, 587};
    return report;
}

ServerReport connected()
{
    ServerReport report = begun();
    report.reached = ServerStep::Connected;
    report.addresses = QStringList{u"192.0.2.1"_s, u"2001:db8::1"_s};
    report.address = u"2001:db8::1"_s;
    report.greeting = u"mail.example.org ESMTP"_s;
    return report;
}

ServerCertificate certificate()
{
    ServerCertificate shown;
    shown.owner = u"mail.example.org"_s;
    shown.issuer = u"Example CA"_s;
    shown.validUntil = QDateTime(QDate(2027, 3, 1), QTime(12, 0), Qt::UTC);
    shown.fingerprint = QByteArray(32, '\xab');
    return shown;
}

ServerReport ready()
{
    ServerReport report = connected();
    report.reached = ServerStep::Ready;
    report.encryption = u"TLSv1.3, TLS_AES_256_GCM_SHA384"_s;
    report.certificate = certificate();
    report.extensions = QStringList{u"PIPELINING"_s, u"SIZE 36700160"_s};
    report.login = LoginState::Accepted;
    report.loginMechanism = u"PLAIN"_s;
    report.loginUser = u"club"_s;
    report.largestMessage = 36'700'160;
    return report;
}

QStringList labelled(const ServerReport &report, const QString &label)
{
    return shown(report).filter(label + u" | "_s);
}

} // namespace

void TestServerReportText::init()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestServerReportText::cleanup()
{
    QLocale::setDefault(QLocale::system());
}

void TestServerReportText::nothingIsSaidBeforeTheFirstStep()
{
    QCOMPARE(shown(begun()), QStringList());
}

void TestServerReportText::aNameThatIsNotFoundIsTheOnlyLine()
{
    ServerReport report = begun();
    report.failure = u"there is no server of that name"_s;
    QCOMPARE(shown(report), QStringList{u"!Result | there is no server of that name"_s});
}

void TestServerReportText::aServerThatIsFoundHasItsAddresses()
{
    ServerReport report = begun();
    report.reached = ServerStep::Found;
    report.addresses = QStringList{u"192.0.2.1"_s, u"192.0.2.2"_s};
    QCOMPARE(shown(report), QStringList{u"+Server | mail.example.org: 192.0.2.1, 192.0.2.2"_s});
}

void TestServerReportText::aConnectionNamesAddressPortAndGreeting()
{
    QCOMPARE(shown(connected()),
             (QStringList{u"+Server | mail.example.org: 192.0.2.1, 2001:db8::1"_s,
                          u"+Connection | 2001:db8::1, port 587"_s,
                          u"+Greeting | mail.example.org ESMTP"_s}));
}

void TestServerReportText::anAddressWithAScopeStaysWhole()
{
    ServerReport report = connected();
    report.address = u"fe80::1%2"_s;
    QCOMPARE(labelled(report, u"Connection"_s),
             QStringList{u"+Connection | fe80::1%2, port 587"_s});
}

void TestServerReportText::everythingIsSaidOnceItIsReady()
{
    const QString fingerprint = QStringList(QList<QString>(32, u"AB"_s)).join(u':');
    QCOMPARE(shown(ready()),
             (QStringList{
                 u"+Server | mail.example.org: 192.0.2.1, 2001:db8::1"_s,
                 u"+Connection | 2001:db8::1, port 587"_s, u"+Greeting | mail.example.org ESMTP"_s,
                 u"+Encryption | TLSv1.3, TLS_AES_256_GCM_SHA384"_s,
                 u"+Certificate | mail.example.org, issued by Example CA, valid until 2027-03-01"_s,
                 u"+Fingerprint | SHA-256 "_s + fingerprint,
                 u"+Extensions | PIPELINING, SIZE 36700160"_s, u"+Login | accepted: club (PLAIN)"_s,
                 u"+Largest message | 36,700,160 bytes (35 MB)"_s,
                 u"+Result | All is well. Nothing was sent."_s}));
}

void TestServerReportText::aLineWithoutEncryptionIsNoted()
{
    ServerReport report = connected();
    report.reached = ServerStep::Ready;
    QCOMPARE(shown(report).mid(3),
             (QStringList{u".Encryption | none: others can read what is sent"_s,
                          u".Login | the server offers none"_s,
                          u".Largest message | no limit is announced"_s,
                          u"+Result | All is well. Nothing was sent."_s}));
}

void TestServerReportText::certificates_data()
{
    QTest::addColumn<int>("standing");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *name, ServerCertificate::Standing standing, const char *line) {
        QTest::newRow(name) << static_cast<int>(standing) << QString::fromLatin1(line);
    };
    row("trusted", ServerCertificate::Standing::Trusted,
        ".Certificate | It does not verify: it is self-signed. You trust this certificate.");
    row("unchecked", ServerCertificate::Standing::Unchecked,
        ".Certificate | It does not verify: it is self-signed. Nothing secret is said on this "
        "line, so it is used all the same.");
    row("refused", ServerCertificate::Standing::Refused,
        "!Certificate | It does not verify: it is self-signed. Nothing is sent to this server.");
}

void TestServerReportText::certificates()
{
    QFETCH(int, standing);
    QFETCH(QString, line);
    ServerReport report = ready();
    report.certificate->standing = static_cast<ServerCertificate::Standing>(standing);
    report.certificate->problem = u"it is self-signed"_s;
    const QStringList lines = labelled(report, u"Certificate"_s);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(1), line);
    QCOMPARE(lines.at(0).front(), line.front());
}

void TestServerReportText::logins_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isReady");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *name, LoginState state, bool isReady,
                        const QStringList &lines) {
        QTest::newRow(name) << static_cast<int>(state) << isReady << lines;
    };
    row("accepted", LoginState::Accepted, false, {u"+Login | accepted: club (PLAIN)"_s});
    row("failed", LoginState::Failed, false, {u"!Login | failed: club"_s});
    row("not offered", LoginState::NotOffered, true, {u".Login | the server offers none"_s});
    row("not offered yet", LoginState::NotOffered, false, {});
    row("not wanted", LoginState::NotWanted, true,
        {u".Login | offered, and not needed on this port"_s});
    row("not wanted yet", LoginState::NotWanted, false, {});
}

void TestServerReportText::logins()
{
    QFETCH(int, state);
    QFETCH(bool, isReady);
    QFETCH(QStringList, lines);
    ServerReport report = ready();
    report.login = static_cast<LoginState>(state);
    report.reached = isReady ? ServerStep::Ready : ServerStep::Encrypted;
    QCOMPARE(labelled(report, u"Login"_s), lines);
}

void TestServerReportText::aFailureComesLast()
{
    ServerReport report = ready();
    report.reached = ServerStep::Encrypted;
    report.login = LoginState::Failed;
    report.loginUser.clear();
    report.largestMessage = 0;
    report.failure = u"the server accepts no login"_s;
    const QStringList lines = shown(report);
    QCOMPARE(lines.mid(lines.size() - 2),
             (QStringList{u"!Login | failed"_s, u"!Result | the server accepts no login"_s}));
}

void TestServerReportText::sizesAreReadInTheUsersFormat()
{
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    QCOMPARE(labelled(ready(), u"Largest message"_s),
             QStringList{u"+Largest message | 36.700.160 bytes (35 MB)"_s});
}
