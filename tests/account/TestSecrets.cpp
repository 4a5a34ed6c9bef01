#include "TestSecrets.h"

#include "ChainRig.h"
#include "account/TraceFile.h"
#include "support/FakeTime.h"

#include <QLoggingCategory>
#include <QTemporaryFile>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString User = u"me"_s;
const QString Secret = u"Schw\u00f6rdfish&7"_s;

// In which shape of the password it is found; empty: in none.
QByteArray shapeFound(const QByteArray &text)
{
    const QByteArray plain = Secret.toUtf8();
    const QByteArray all[] = {
        plain,
        Secret.toLatin1(),
        plain.toBase64(),
        plain.toHex(),
        plain.toPercentEncoding(),
        ('\0' + User.toUtf8() + '\0' + plain).toBase64(),
        "user=" + User.toUtf8() +
            "\x01"
            "auth=Bearer " +
            plain,
        ("user=" + User.toUtf8() +
         "\x01"
         "auth=Bearer " +
         plain + "\x01\x01")
            .toBase64(),
    };
    for (const QByteArray &shape : all) {
        if (text.contains(shape))
            return shape;
    }
    return {};
}

// What this program, and those that it starts, say to standard error while it lives.
class CapturedStandardError
{
public:
    CapturedStandardError()
    {
        if (!m_file.open() || ::dup2(m_file.handle(), STDERR_FILENO) < 0)
            QTest::qFail("standard error cannot be captured", __FILE__, __LINE__);
    }
    CapturedStandardError(const CapturedStandardError &) = delete;
    CapturedStandardError &operator=(const CapturedStandardError &) = delete;
    ~CapturedStandardError()
    {
        ::dup2(m_before, STDERR_FILENO);
        ::close(m_before);
    }
    [[nodiscard]] QByteArray said() const { return readFile(m_file.fileName()); }

private:
    QTemporaryFile m_file;
    int m_before = ::dup(STDERR_FILENO);
};

QByteArray logged;

void takeLog(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    logged += QByteArray(context.category) + ": " + text.toUtf8() + '\n';
}

// What Qt and the program log while it lives, down to the least.
class CapturedLog
{
public:
    CapturedLog()
    {
        logged.clear();
        QLoggingCategory::setFilterRules(u"*=true"_s);
    }
    CapturedLog(const CapturedLog &) = delete;
    CapturedLog &operator=(const CapturedLog &) = delete;
    ~CapturedLog()
    {
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(m_before);
    }

private:
    QtMessageHandler m_before = qInstallMessageHandler(takeLog);
};

// All ways to a login, with the password in each place that one can come from.
void goAllWays(ChainRig &rig)
{
    const LoginEntry typed{User, Secret, true};
    rig.writeNetrc("machine smtp.example.org login me password " + Secret.toUtf8());
    QCOMPARE(rig.found(), u"password me "_s + Secret);
    rig.writeNetrc("machine smtp.example.org login me password " + Secret.toUtf8(),
                   QFile::ReadOther);
    QCOMPARE(rig.foundByAsking(typed), u"password me "_s + Secret);
    rig.refuse(User, Secret);
    rig.keyring.failure = u"locked"_s;
    QCOMPARE(rig.foundByAsking(typed, 1, u"wrong password"_s), u"password me "_s + Secret);
    rig.accept(User, Secret);
    QCOMPARE(rig.found(), u"password me "_s + Secret);
    rig.refuse(User, Secret);
    rig.keyring.passwords.insert(u"me@smtp.example.org"_s, Secret);
    QCOMPARE(rig.found(), u"password me "_s + Secret);
    writeFile(rig.folder.filePath(u"secret"_s), Secret.toUtf8());
    const QString path = rig.folder.filePath(u"secret"_s);
    rig.setAccount(User, u"cat "_s + path);
    QCOMPARE(rig.found(), u"token me "_s + Secret);
    rig.accept(User, Secret, Login::Kind::Token);
    rig.setAccount(User, u"sh -c \"cat %1; echo complaint >&2; exit 1\""_s.arg(path));
    QCOMPARE(rig.found(), u"the command \"sh\" failed with exit status 1"_s);
}

} // namespace

void TestSecrets::searchFindsWhatIsThere()
{
    QVERIFY(!shapeFound("x" + Secret.toUtf8() + "y").isEmpty());
    QVERIFY(!shapeFound("AUTH PLAIN " + ("\0me\0"_ba + Secret.toUtf8()).toBase64()).isEmpty());
    QVERIFY(shapeFound("AUTH PLAIN ...").isEmpty());
}

void TestSecrets::noWayOfALoginLeavesItsPasswordBehind()
{
    ChainRig rig;
    FakeClock clock;
    const QString tracePath = rig.folder.filePath(u"trace.txt"_s);
    QByteArray standardError;
    {
        const CapturedStandardError captured;
        const CapturedLog log;
        qDebug("the log is captured");
        goAllWays(rig);
        standardError = captured.said();
    }
    if (QTest::currentTestFailed())
        return;
    TraceFile trace(tracePath, clock, rig.prompts);
    for (const QString &answer : std::as_const(rig.answers)) {
        if (!answer.startsWith(u"password "_s) && !answer.startsWith(u"token "_s))
            trace.line(rig.server, Speaker::Note, answer);
    }
    QByteArray notices;
    for (const Notice &notice : rig.prompts.takeNotices())
        notices += (notice.text + notice.detail).toUtf8() + '\n';

    QVERIFY(readFile(tracePath).contains("exit status"));
    QVERIFY(readFile(rig.settingsFile).contains("\"User\"=\"me\""));
    QVERIFY(notices.contains("could not be remembered"));
    QVERIFY(standardError.contains("complaint"));
    QVERIFY(logged.contains("the log is captured"));
    QCOMPARE(shapeFound(readFile(tracePath)), QByteArray());
    QCOMPARE(shapeFound(notices), QByteArray());
    QCOMPARE(shapeFound(logged), QByteArray());
    QCOMPARE(shapeFound(standardError), QByteArray());
    QCOMPARE(shapeFound(readFile(rig.settingsFile)), QByteArray());
}
