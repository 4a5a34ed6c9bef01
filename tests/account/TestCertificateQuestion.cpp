#include "TestCertificateQuestion.h"

#include "account/CertificateQuestion.h"
#include "settings/RegFileStore.h"
#include "support/FakeSmtp.h"
#include "support/FakeTime.h"
#include "support/ScriptedPrompts.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class RefusingSmtp : public FakeSmtp
{
public:
    [[nodiscard]] std::optional<ServerCertificate> refusedCertificate() const override
    {
        return certificate;
    }

    std::optional<ServerCertificate> certificate;
};

struct Rig
{
    Rig()
    {
        smtp.Server = u"smtp.example.org"_s;
        ServerCertificate certificate;
        certificate.standing = ServerCertificate::Standing::Refused;
        certificate.host = smtp.Server;
        certificate.owner = u"mail.provider.example"_s;
        certificate.issuer = u"Provider & Sons"_s;
        certificate.validFrom = QDateTime(QDate(2026, 1, 2), QTime(3, 4), Qt::UTC);
        certificate.validUntil = QDateTime(QDate(2027, 1, 2), QTime(3, 4), Qt::UTC);
        certificate.fingerprint = QByteArray(16, '\x12') + QByteArray(16, '\xef');
        certificate.problem = u"it is self-signed"_s;
        smtp.certificate = certificate;
    }
    void fail() { smtp.raiseError(12, u"the certificate does not verify"_s); }
    [[nodiscard]] QList<QByteArray> trusted(const QString &host) const
    {
        return accounts.account(host).trustedCertificates;
    }

    QTemporaryDir folder;
    QString file = folder.filePath(u"settings.reg"_s);
    CodePage codePage{"windows-1252"};
    RegFileStore store{file.toStdString()};
    Accounts accounts{store, codePage};
    ScriptedPrompts prompts;
    FakeFormats formats;
    RefusingSmtp smtp;
    std::unique_ptr<CertificateQuestion> question =
        std::make_unique<CertificateQuestion>(smtp, accounts, prompts, formats);
};

} // namespace

void TestCertificateQuestion::certificateIsShownWithAllThatTellsItApart()
{
    Rig rig;
    rig.fail();
    QCOMPARE(rig.prompts.questions.size(), 1);
    const Question &box = rig.prompts.questions.constFirst();
    QCOMPARE(box.topic, Topic::TrustCertificate);
    QCOMPARE(box.icon, Icon::Exclamation);
    QCOMPARE(box.buttons, Buttons::YesNo);
    QVERIFY(box.enterIsNo);
    QCOMPARE(box.title, u"Certificate"_s);
    QCOMPARE(box.text,
             u"The server smtp.example.org shows a certificate that cannot be verified: it is "
             "self-signed.\n\n"
             "Issued to: mail.provider.example\n"
             "Issued by: Provider & Sons\n"
             "Valid from 02/01/2026 to 02/01/2027\n"
             "SHA-256 fingerprint:\n"
             "12:12:12:12:12:12:12:12:12:12:12:12:12:12:12:12\n"
             "EF:EF:EF:EF:EF:EF:EF:EF:EF:EF:EF:EF:EF:EF:EF:EF\n\n"
             "Somebody may be pretending to be your server. Ask your provider to read the "
             "fingerprint of the certificate out to you, and compare it.\n\n"
             "Do you want to trust this certificate for this server from now on?"_s);
}

void TestCertificateQuestion::yesTrustsItForTheHostThatShowedIt()
{
    Rig rig;
    rig.fail();
    // The next session is with another server while the box is open.
    rig.smtp.certificate->host = u"other.example.org"_s;
    const QByteArray fingerprint = rig.smtp.certificate->fingerprint;
    rig.smtp.certificate.reset();
    rig.prompts.expectAnswer(Topic::TrustCertificate, Answer::Yes);
    rig.prompts.answerAll();
    QCOMPARE(rig.trusted(u"smtp.example.org"_s), QList({fingerprint}));
    QCOMPARE(rig.trusted(u"other.example.org"_s), QList<QByteArray>());
    QCOMPARE(
        rig.prompts.takeNoticeTexts(),
        QStringList(u"The certificate is trusted from now on. If part of the list already has the "
                    "message, uncheck those first; then press Start."_s));
}

void TestCertificateQuestion::noChangesNothing()
{
    Rig rig;
    rig.fail();
    rig.prompts.expectAnswer(Topic::TrustCertificate, Answer::No);
    rig.prompts.answerAll();
    QCOMPARE(rig.trusted(u"smtp.example.org"_s), QList<QByteArray>());
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestCertificateQuestion::otherFailuresAskNothing()
{
    Rig rig;
    rig.smtp.certificate.reset();
    rig.fail();
    QVERIFY(rig.prompts.questions.isEmpty());
}

void TestCertificateQuestion::sameCertificateIsAskedAboutOnceAtATime()
{
    Rig rig;
    rig.fail();
    rig.smtp.certificate->host = u"SMTP.example.org"_s;
    rig.fail();
    QCOMPARE(rig.prompts.questions.size(), 1);
    rig.prompts.expectAnswer(Topic::TrustCertificate, Answer::No);
    rig.prompts.answerAll();
    rig.fail();
    QCOMPARE(rig.prompts.questions.size(), 2);
    rig.smtp.certificate->fingerprint = QByteArray(32, 'x');
    rig.fail();
    QCOMPARE(rig.prompts.questions.size(), 3);
}

void TestCertificateQuestion::textsOfAStrangerStayInTheirLine()
{
    Rig rig;
    rig.smtp.certificate->owner = u"a\n\nYour provider says: press Yes %4\u202e"_s;
    rig.smtp.certificate->issuer = QString(10'000, u'x');
    rig.fail();
    const QStringList lines = rig.prompts.questions.constFirst().text.split(u'\n');
    QCOMPARE(lines.at(2), u"Issued to: a\\x0a\\x0aYour provider says: press Yes %4\\u202e"_s);
    QCOMPARE(lines.at(3), u"Issued by: "_s + QString(100, u'x') + u"..."_s);
}

void TestCertificateQuestion::settingsThatCannotBeWrittenAreSaid()
{
    Rig rig;
    QVERIFY(QDir().mkpath(rig.file));
    rig.fail();
    rig.prompts.expectAnswer(Topic::TrustCertificate, Answer::Yes);
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList(u"The settings cannot be written; the certificate is not trusted."_s));
}

void TestCertificateQuestion::answerCountsForNothingWhenNobodyTakesIt()
{
    Rig rig;
    rig.fail();
    rig.question.reset();
    rig.prompts.expectAnswer(Topic::TrustCertificate, Answer::Yes);
    rig.prompts.answerAll();
    QCOMPARE(rig.trusted(u"smtp.example.org"_s), QList<QByteArray>());
}
