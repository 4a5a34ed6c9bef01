#include "smtp/TestContract.h"

#include "smtp/ClientFakes.h"
#include "smtp/ObligingServer.h"
#include "smtp/client/SmtpClient.h"
#include "support/FakeServer.h"
#include "support/FakeSmtp.h"
#include "support/FakeTime.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// One of the clients, with whatever it needs to answer by itself.
struct Subject
{
    virtual ~Subject() = default;

    std::unique_ptr<Smtp> smtp;
    QStringList events;

    void listen()
    {
        QObject::connect(smtp.get(), &Smtp::StatusChanged, smtp.get(), [this](qint32 code) {
            if (code == Smtp::Ready)
                events += u"ready"_s;
        });
        QObject::connect(smtp.get(), &Smtp::MessageDone, smtp.get(),
                         [this](bool sent) { events += sent ? u"sent"_s : u"refused"_s; });
        QObject::connect(smtp.get(), &Smtp::SmtpError, smtp.get(),
                         [this](qint32, const QString &) { events += u"error"_s; });
    }

    /// Waits for so many events, and for some more that must not come.
    QStringList hear(qsizetype count)
    {
        (void)FakeServer::waitUntil([&] { return events.size() >= count; });
        FakeServer::settle();
        return std::exchange(events, {});
    }

    void send(const QString &recipient = u"anna@example.net"_s) const
    {
        smtp->RecipientAddress = recipient;
        smtp->FromAddress = u"sender@example.org"_s;
        smtp->TextBody = u"Hello"_s;
        smtp->Send();
    }
};

struct FakeSubject : Subject
{
    FakeSubject()
    {
        auto fake = std::make_unique<FakeSmtp>();
        fake->automatic = true;
        fake->accepts = [](const FakeSmtp::SentMessage &message) {
            return !message.message.RecipientAddress.startsWith(u"no");
        };
        smtp = std::move(fake);
        listen();
    }
};

struct RealSubject : Subject
{
    FakeClock clock;
    ClientFakes fakes;
    ObligingServer server;

    RealSubject()
    {
        smtp = std::make_unique<SmtpClient>(clock, fakes.surroundings());
        smtp->Server = u"127.0.0.1"_s;
        smtp->Port = server.serverPort();
        listen();
    }
    ~RealSubject() override { smtp.reset(); } // it holds the clock and the fakes
};

void bothClients()
{
    QTest::addColumn<bool>("isReal");
    QTest::newRow("in memory") << false;
    QTest::newRow("real") << true;
}

std::unique_ptr<Subject> subject()
{
    QFETCH(bool, isReal);
    if (isReal)
        return std::make_unique<RealSubject>();
    return std::make_unique<FakeSubject>();
}

const QStringList Ready = {u"ready"_s};
const QStringList SentAndReady = {u"sent"_s, u"ready"_s};

} // namespace

void TestContract::session_data()
{
    bothClients();
}

void TestContract::session()
{
    const auto client = subject();
    client->smtp->Reset();
    client->smtp->Connect();
    QCOMPARE(client->hear(1), Ready);
    for (int message = 0; message < 3; ++message) {
        client->send();
        QCOMPARE(client->hear(2), SentAndReady);
    }
    client->smtp->Disconnect();
    QCOMPARE(client->hear(0), QStringList());
    QCOMPARE(client->smtp->StatusFlag(), 0);
}

void TestContract::refused_data()
{
    bothClients();
}

void TestContract::refused()
{
    const auto client = subject();
    client->smtp->Connect();
    QCOMPARE(client->hear(1), Ready);
    client->send(u"nobody@example.net"_s);
    QCOMPARE(client->hear(2), QStringList({u"refused"_s, u"ready"_s}));
    client->send();
    QCOMPARE(client->hear(2), SentAndReady);
}

void TestContract::resetEmptiesTheMessage_data()
{
    bothClients();
}

void TestContract::resetEmptiesTheMessage()
{
    const auto client = subject();
    Smtp &smtp = *client->smtp;
    smtp.RecipientList = true;
    smtp.RequestReceipt = true;
    smtp.ReceiptAddress = u"a@b.example"_s;
    smtp.TextBody = u"text"_s;
    smtp.HtmlBody = u"<p>"_s;
    smtp.Subject = u"kept"_s;
    smtp.Reset();
    QVERIFY(!smtp.RecipientList);
    QVERIFY(!smtp.RequestReceipt);
    QCOMPARE(smtp.ReceiptAddress + smtp.TextBody + smtp.HtmlBody, QString());
    QCOMPARE(smtp.Subject, u"kept"_s);
    QCOMPARE(client->hear(0), QStringList());
}

void TestContract::sendEmptiesTheAttachments_data()
{
    bothClients();
}

void TestContract::sendEmptiesTheAttachments()
{
    const auto client = subject();
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.txt"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    client->smtp->AddAttachment(file.fileName());
    client->smtp->Reset(); // empties them too
    client->smtp->Connect();
    QCOMPARE(client->hear(1), Ready);
    client->send();
    QCOMPARE(client->hear(2), SentAndReady);
    client->smtp->AddAttachment(file.fileName());
    client->send();
    QCOMPARE(client->hear(2), SentAndReady);
    client->send();
    QCOMPARE(client->hear(2), SentAndReady);

    QList<bool> withAttachment;
    if (const auto *real = dynamic_cast<RealSubject *>(client.get())) {
        for (const QByteArray &message : real->server.messages)
            withAttachment += message.contains("multipart/mixed");
    } else {
        for (const auto &message : static_cast<FakeSmtp &>(*client->smtp).sent)
            withAttachment += !message.attachments.isEmpty();
    }
    QCOMPARE(withAttachment, QList<bool>({false, true, false}));
}

void TestContract::noEventInsideACall_data()
{
    bothClients();
}

void TestContract::noEventInsideACall()
{
    const auto client = subject();
    client->smtp->Reset();
    client->smtp->Connect();
    QVERIFY(client->events.isEmpty());
    QCOMPARE(client->hear(1), Ready);
    client->send();
    QVERIFY(client->events.isEmpty());
    QCOMPARE(client->hear(2), SentAndReady);
    client->send(u"nobody"_s);
    QVERIFY(client->events.isEmpty());
    QCOMPARE(client->hear(2), QStringList({u"refused"_s, u"ready"_s}));
}

void TestContract::nothingAfterDisconnect_data()
{
    bothClients();
}

void TestContract::nothingAfterDisconnect()
{
    const auto client = subject();
    client->smtp->Connect();
    client->smtp->Disconnect();
    QCOMPARE(client->hear(0), QStringList());
    client->smtp->Connect();
    client->smtp->Reset();
    QCOMPARE(client->hear(0), QStringList());
    client->smtp->Connect();
    client->smtp->Connect();
    QCOMPARE(client->hear(1), Ready);
}

void TestContract::messageInFlightFinishes_data()
{
    bothClients();
}

void TestContract::messageInFlightFinishes()
{
    const auto client = subject();
    client->smtp->Connect();
    QCOMPARE(client->hear(1), Ready);
    client->send();
    client->smtp->Reset();
    QCOMPARE(client->hear(1), QStringList{u"sent"_s});
}

void TestContract::connectWaits_data()
{
    bothClients();
}

void TestContract::connectWaits()
{
    const auto client = subject();
    client->smtp->Connect();
    QCOMPARE(client->hear(1), Ready);
    client->send();
    client->smtp->Reset();
    client->smtp->Connect();
    QCOMPARE(client->hear(2), SentAndReady);
    client->send();
    QCOMPARE(client->hear(2), SentAndReady);
}

void TestContract::disconnectDropsTheConnectThatWaits_data()
{
    bothClients();
}

void TestContract::disconnectDropsTheConnectThatWaits()
{
    const auto client = subject();
    client->smtp->Connect();
    QCOMPARE(client->hear(1), Ready);
    client->send();
    client->smtp->Connect();
    client->smtp->Disconnect();
    QCOMPARE(client->hear(1), QStringList{u"sent"_s});
}

void TestContract::inlineFilesStay_data()
{
    bothClients();
}

void TestContract::inlineFilesStay()
{
    const auto client = subject();
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.png"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const QString reference = client->smtp->AddRelatedFile(file.fileName());
    QVERIFY(reference.startsWith(u"cid:"));
    QVERIFY(client->smtp->AddRelatedFile(file.fileName()) != reference);
    for (int packet = 0; packet < 2; ++packet) {
        client->smtp->Reset();
        client->smtp->Connect();
        QCOMPARE(client->hear(1), Ready);
        client->smtp->HtmlBody = u"<img src=\"%1\">"_s.arg(reference);
        client->send();
        QCOMPARE(client->hear(2), SentAndReady);
        client->smtp->Disconnect();
    }
    const QString next = client->smtp->AddRelatedFile(file.fileName());
    client->smtp->Reset();
    client->smtp->Connect();
    QCOMPARE(client->hear(1), Ready);
    client->smtp->HtmlBody = u"<img src=\"%1\"><img src=\"%2\">"_s.arg(reference, next);
    client->send();
    QCOMPARE(client->hear(2), SentAndReady);

    QList<qsizetype> counts;
    if (const auto *real = dynamic_cast<RealSubject *>(client.get())) {
        for (const QByteArray &message : real->server.messages)
            counts += message.count("Content-ID: ");
        QCOMPARE(counts, QList<qsizetype>({1, 1, 1})); // only those that the HTML shows
    } else {
        for (const auto &message : static_cast<FakeSmtp &>(*client->smtp).sent)
            counts += message.inlineFiles.size();
        QCOMPARE(counts, QList<qsizetype>({2, 2, 1}));
    }
}
