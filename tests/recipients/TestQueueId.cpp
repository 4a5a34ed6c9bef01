#include "TestQueueId.h"

#include "recipients/QueueId.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString idIn(const QString &text, int code = 250)
{
    return queueIdOf({SmtpVerb::Content, code, {}, text});
}

} // namespace

void TestQueueId::serversNameTheirQueueId_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("id");
    const auto row = [](const char *name, const QString &text, const QString &id) {
        QTest::newRow(name) << text << id;
    };
    row("Postfix", u"Ok: queued as 9F8B41A05C"_s, u"9F8B41A05C"_s);
    row("Postfix, long ids", u"Ok: queued as 4WkZ2y1B3Wz9sQk"_s, u"4WkZ2y1B3Wz9sQk"_s);
    row("Postfix behind a filter",
        u"from MTA(smtp:[127.0.0.1]:10025): 250 2.0.0 Ok: queued as 9F8B41A05C"_s, u"9F8B41A05C"_s);
    row("Postfix behind a relay that names its own",
        u"Ok, id=01234-05, queued as 11111AAAAA (250 Ok: queued as 9F8B41A05C)"_s, u"9F8B41A05C"_s);
    row("a relay with ids in angle brackets",
        u"OK: queued as <202611210800.12345678901@smtp-relay.example.net>"_s,
        u"202611210800.12345678901@smtp-relay.example.net"_s);
    row("Exim", u"OK id=1qXyZ1-0001Ab-2C"_s, u"1qXyZ1-0001Ab-2C"_s);
    row("Exim, long ids", u"OK id=1tEDzs-00000003yQn-1rXe"_s, u"1tEDzs-00000003yQn-1rXe"_s);
    row("GMX", u"Requested mail action okay, completed: id=0MQhyf-1fRbRk2vaX-00U1Vq"_s,
        u"0MQhyf-1fRbRk2vaX-00U1Vq"_s);
    row("Sendmail", u"38L7ko1x012345 Message accepted for delivery"_s, u"38L7ko1x012345"_s);
    row("Proofpoint", u"3kq1abcd23-1 Message accepted for delivery"_s, u"3kq1abcd23-1"_s);
    row("OpenSMTPD", u"fadebcde Message accepted for delivery"_s, u"fadebcde"_s);
    row("Cloudmark", u"JZt41p00C0Abcde01 mail accepted for delivery"_s, u"JZt41p00C0Abcde01"_s);
    row("Exchange",
        u"<26112108000012@pc> [InternalId=61847529063424, Hostname=mx1.example.org] 1964 bytes in "
        "0.171, 11.2 KB/sec Queued mail for delivery"_s,
        u"61847529063424"_s);
    row("Outlook.com",
        u"OK <AM0PR0202MB3345@AM0PR0202MB3345.eurprd02.prod.example.com> "
        "[Hostname=AM0PR0202MB3345.eurprd02.prod.example.com]"_s,
        u"AM0PR0202MB3345@AM0PR0202MB3345.eurprd02.prod.example.com"_s);
    row("IIS", u"<MAIL01Pq5vXfHN6Rm000012@mail01.example.org> Queued mail for delivery"_s,
        u"MAIL01Pq5vXfHN6Rm000012@mail01.example.org"_s);
    row("Gmail", u"OK  1795248000 ffacd0b85a97d-3825494ea57sm123456f8f.12 - gsmtp"_s,
        u"ffacd0b85a97d-3825494ea57sm123456f8f.12"_s);
    row("Gmail with a verdict",
        u"OK DMARC:Quarantine 1795248000 a1-20020a05si1234567wrb.1 - gsmtp"_s,
        u"a1-20020a05si1234567wrb.1"_s);
    row("Amazon SES", u"Ok 0102018f3a5b7c9d-1a2b3c4d-5e6f-7a8b-9c0d-1e2f3a4b5c6d-000000"_s,
        u"0102018f3a5b7c9d-1a2b3c4d-5e6f-7a8b-9c0d-1e2f3a4b5c6d-000000"_s);
    row("qmail", u"ok 1795248000 qp 28765"_s, u"28765"_s);
    row("Haraka", u"Message Queued (9C2D7F1E-4B6A-4C8D-8E0F-1A2B3C4D5E6F.1)"_s,
        u"9C2D7F1E-4B6A-4C8D-8E0F-1A2B3C4D5E6F.1"_s);
    row("Stalwart", u"Message queued with id 1a2b3c4d5e6f7a8b."_s, u"1a2b3c4d5e6f7a8b"_s);
    row("Dovecot", u"<anna@example.org> uPpFKbVBH2dNJgAAJRqqzA Saved"_s,
        u"uPpFKbVBH2dNJgAAJRqqzA"_s);
    row("Dovecot, one of several", u"<anna@example.org> uPpFKbVBH2dNJgAAJRqqzA:2 Saved"_s,
        u"uPpFKbVBH2dNJgAAJRqqzA:2"_s);
    row("Courier", u"Ok. 00000000000A1234.000000006B1F2C3D.00001A2B"_s,
        u"00000000000A1234.000000006B1F2C3D.00001A2B"_s);
}

void TestQueueId::serversNameTheirQueueId()
{
    QFETCH(QString, text);
    QFETCH(QString, id);
    QCOMPARE(idIn(text), id);
}

void TestQueueId::otherRepliesNameNone_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const QString &text) { QTest::newRow(qPrintable(text)) << text; };
    row(u""_s);
    row(u"OK"_s);
    row(u"Ok, thank you very much"_s);
    row(u"Ok 12345"_s);
    row(u"Ok Message accepted for delivery"_s);
    row(u"Ok: Message accepted for delivery"_s);
    row(u"Message accepted for delivery"_s);
    row(u"Message queued"_s);
    row(u"Queued (9.454 seconds)"_s); // hMailServer
    row(u"Requested mail action okay, completed"_s);
    row(u"Queued mail for delivery"_s);
    row(u"<anna@example.org> Saved"_s);
    row(u"Everything saved"_s);
    row(u"Great success"_s);
    row(u"queued as"_s);
    row(u"queued as \u00e9t\u00e9"_s);
    row(u"OK id=\u0001\u0002"_s);
    row(u"OK - gsmtp"_s);
}

void TestQueueId::otherRepliesNameNone()
{
    QFETCH(QString, text);
    QCOMPARE(idIn(text), QString());
}

void TestQueueId::refusalsNameNone()
{
    QCOMPARE(idIn(u"Not queued as 9F8B41A05C"_s, 451), QString());
    QCOMPARE(idIn(u"Message id=1qXyZ1-0001Ab-2C refused"_s, 550), QString());
    QCOMPARE(idIn(u"queued as 9F8B41A05C"_s, 0), QString());
}

void TestQueueId::anIdThatNobodyWouldCopyIsNone()
{
    constexpr qsizetype Longest = 100;
    for (const QString &form :
         {u"Ok: queued as %1"_s, u"OK id=%1"_s, u"OK 1795248000 %1 - gsmtp"_s,
          u"%1 Message accepted for delivery"_s, u"<%1> Queued mail for delivery"_s}) {
        QCOMPARE(idIn(form.arg(QString(Longest, u'a'))), QString(Longest, u'a'));
        QCOMPARE(idIn(form.arg(QString(Longest + 1, u'a'))), QString());
        QCOMPARE(idIn(form.arg(QString(u"ab."_s).repeated(Longest) + u'c')), QString());
    }
}

void TestQueueId::aVeryLongReplyIsNotSearched()
{
    const QString id = u"queued as 9F8B41A05C"_s;
    QCOMPARE(idIn(id + QString(1000 - id.size(), u' ')), u"9F8B41A05C"_s);
    QCOMPARE(idIn(id + QString(1'000'000, u' ')), QString());
}
