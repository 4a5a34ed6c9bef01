#include "smtp/TestHeaders.h"

#include "smtp/MessageUnderTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestHeaders::headers()
{
    MessageUnderTest mail;
    QCOMPARE(mail.bytes(), "From: Sender <sender@example.org>\r\n"
                           "To: anna@example.net\r\n"
                           "Subject: Greetings\r\n"
                           "Date: Sat, 21 Nov 2026 09:00:00 +0100\r\n"
                           "Message-ID: <1@pc>\r\n"
                           "X-Mailer: Sorvanta\r\n"
                           "MIME-Version: 1.0\r\n"
                           "Content-Type: text/plain; charset=utf-8\r\n"
                           "Content-Transfer-Encoding: 7bit\r\n"
                           "\r\n"
                           "Hello\r\n"_qba);
    // The next message differs in what is its own, and in nothing else.
    const QByteArray first = mail.bytes();
    mail.message.RecipientAddress = u"bert@example.net"_s;
    mail.message.ExtraHeaders = u"Message-ID: <2@pc>\r\n"_s;
    QCOMPARE(mail.bytes(), QByteArray(first).replace("anna@", "bert@").replace("<1@pc>", "<2@pc>"));
    mail.message.Subject = u"Other"_s;
    QCOMPARE(mail.read().header("Subject"), "Other"_qba);
}

void TestHeaders::receipt()
{
    MessageUnderTest mail;
    mail.message.ReceiptAddress = u"sender@example.org"_s;
    QVERIFY(!mail.bytes().contains("Disposition-Notification-To"));
    mail.message.RequestReceipt = true;
    QCOMPARE(mail.read().header("Disposition-Notification-To"), "sender@example.org"_qba);
    mail.message.ReceiptAddress = u"x\r\nBcc: y@z"_s;
    QVERIFY(!mail.builder.build(mail.message, {}));
}

void TestHeaders::group()
{
    MessageUnderTest mail;
    mail.message.RecipientList = true;
    mail.message.RecipientAddress = u"anna@example.net,,bert@example.net"_s;
    QCOMPARE(mail.read().header("To"), "undisclosed-recipients:;"_qba);
    QVERIFY(!mail.bytes().contains("example.net"));
    const auto letter = mail.builder.build(mail.message, {});
    QCOMPARE(letter->recipients.size(), 3);
    QVERIFY(!letter->recipients[1]);
    QCOMPARE(LetterBuilder::recipientCount(mail.message), 3);

    mail.message.RecipientAddress = u"anna@example.net"_s;
    QCOMPARE(mail.read().header("To"), "anna@example.net"_qba);
}

void TestHeaders::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("from"); // empty: only read back

    QTest::newRow("none") << u""_s << "sender@example.org"_qba;
    QTest::newRow("blanks") << u"  "_s << "sender@example.org"_qba;
    QTest::newRow("plain") << u"Anna Rossi"_s << "Anna Rossi <sender@example.org>"_qba;
    QTest::newRow("comma") << u"Rossi, Anna"_s << "\"Rossi, Anna\" <sender@example.org>"_qba;
    QTest::newRow("quotes") << u"Anna \"la\" Rossi"_s
                            << "\"Anna \\\"la\\\" Rossi\" <sender@example.org>"_qba;
    QTest::newRow("an address") << u"A <b@c>"_s << "\"A <b@c>\" <sender@example.org>"_qba;
    QTest::newRow("backslash") << u"a\\b"_s << "\"a\\\\b\" <sender@example.org>"_qba;
    QTest::newRow("accents") << u"Niccolò Perché"_s << ""_qba;
    QTest::newRow("accents and comma") << u"Rossi, Niccolò"_s << ""_qba;
    QTest::newRow("another script") << u"山田太郎 と 申します"_s << ""_qba;
    QTest::newRow("beyond the basic plane") << u"Anna 😀"_s << ""_qba;
    QTest::newRow("long") << u"Accademia di Santa Cecilia, sezione della città di "_s.repeated(6)
                          << ""_qba;
    QTest::newRow("long without blanks") << u"x"_s.repeated(1500) << ""_qba;
    QTest::newRow("like an encoded word") << u"=?utf-8?q?x?="_s << ""_qba;
}

void TestHeaders::names()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, from);
    MessageUnderTest mail;
    mail.message.FromName = name;
    const QByteArray value = mail.read().header("From");
    QCOMPARE(mail.problems, QStringList());
    if (!from.isEmpty()) {
        QCOMPARE(value, from);
        return;
    }
    QVERIFY(value.endsWith(" <sender@example.org>"));
    QString read = decodedWords(value.chopped(21)).trimmed();
    read.remove(u'"'); // words that stand in quotes beside encoded ones
    QCOMPARE(read, name.trimmed());
}

void TestHeaders::subjects_data()
{
    QTest::addColumn<QString>("subject");
    QTest::addColumn<bool>("isPlain");

    QTest::newRow("empty") << u""_s << true;
    QTest::newRow("plain") << u"Your letter, number 7: \"hello\" <now>"_s << true;
    QTest::newRow("accents") << u"Perché no? È così"_s << false;
    QTest::newRow("one accent") << u"Plain words and one perché among them"_s << false;
    QTest::newRow("another script") << u"お知らせ"_s.repeated(30) << false;
    QTest::newRow("long") << u"parola "_s.repeated(60) + u"fine"_s << true;
    QTest::newRow("long without blanks") << u"x"_s.repeated(1500) << false;
    QTest::newRow("like an encoded word") << u"=?utf-8?b?eA==?= is no subject"_s << false;
    QTest::newRow("half a character") << u"a"_s + QChar(0xd83d) + u"b"_s << true; // becomes "?"
}

void TestHeaders::subjects()
{
    QFETCH(QString, subject);
    QFETCH(bool, isPlain);
    MessageUnderTest mail;
    mail.message.Subject = subject;
    const QByteArray value = mail.read().header("Subject");
    QCOMPARE(mail.problems, QStringList());
    QCOMPARE(decodedWords(value), QString::fromUtf8(subject.toUtf8()));
    QCOMPARE(!value.contains("=?"), isPlain);
}

void TestHeaders::extraHeaders_data()
{
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QByteArray>("written");

    QTest::newRow("none") << u""_s << ""_qba;
    QTest::newRow("several") << u"Message-ID: <1@pc>\r\nX-Run: 7\r\n"_s
                             << "Message-ID: <1@pc>\r\nX-Run: 7\r\n"_qba;
    QTest::newRow("as they stand") << u"X-A:  two  blanks \r\n"_s << "X-A:  two  blanks \r\n"_qba;
    QTest::newRow("the last end is missing") << u"X-A: 1"_s << "X-A: 1\r\n"_qba;
    QTest::newRow("continued") << u"X-A: 1\r\n\tand 2\r\n"_s << "X-A: 1\r\n\tand 2\r\n"_qba;
    QTest::newRow("continues nothing") << u" and 2\r\nX-A: 1\r\n"_s << "X-A: 1\r\n"_qba;
    QTest::newRow("an empty line") << u"X-A: 1\r\n\r\nX-B: 2\r\n"_s << "X-A: 1\r\nX-B: 2\r\n"_qba;
    QTest::newRow("a blank line") << u"X-A: 1\r\n \r\nX-B: 2\r\n"_s << "X-A: 1\r\nX-B: 2\r\n"_qba;
    QTest::newRow("no field") << u"hello\r\nX-A: 1\r\n"_s << "X-A: 1\r\n"_qba;
    QTest::newRow("a blank in the name") << u"X A: 1\r\n  2\r\nX-B: 2\r\n"_s << "X-B: 2\r\n"_qba;
    QTest::newRow("bare line ends")
        << u"X-A: 1\nBcc: a@b\rX-C: 3\r\n"_s << "X-A: 1 Bcc: a@b X-C: 3\r\n"_qba;
    QTest::newRow("fields of our own")
        << u"From: x@y\r\nTO: x@y\r\nBcc: x@y\r\n z@y\r\nContent-Type: a/b\r\nX-A: 1\r\n"_s
        << "X-A: 1\r\n"_qba;
    QTest::newRow("accents") << u"X-A: è\r\n"_s << "X-A: =?UTF-8?B?w6g=?=\r\n"_qba;
}

void TestHeaders::extraHeaders()
{
    QFETCH(QString, lines);
    QFETCH(QByteArray, written);
    MessageUnderTest mail;
    mail.message.ExtraHeaders = lines;
    mail.message.Mailer.clear();
    (void)mail.read();
    QCOMPARE(mail.problems, QStringList());
    const QByteArray bytes = mail.bytes();
    const qsizetype begin = bytes.indexOf("+0100\r\n") + 7;
    QCOMPARE(bytes.sliced(begin, bytes.indexOf("MIME-Version") - begin), written);
}

void TestHeaders::date()
{
    MessageUnderTest mail;
    const auto date = [&] { return mail.read().header("Date"); };
    QCOMPARE(date(), "Sat, 21 Nov 2026 09:00:00 +0100"_qba);
    // The zone is that of the moment, looked at anew each second.
    mail.clock.offsetFromUtc = -(3 * 60 + 30) * 60;
    mail.clock.advanceMilliseconds(1000);
    mail.message.DateText = u"Sat, 21 Nov 2026 04:30:01"_s;
    QCOMPARE(date(), "Sat, 21 Nov 2026 04:30:01 -0330"_qba);
    mail.clock.offsetFromUtc = 0;
    mail.clock.advanceMilliseconds(1000);
    QCOMPARE(date(), "Sat, 21 Nov 2026 04:30:01 +0000"_qba);
    mail.message.DateText.clear();
    QCOMPARE(date(), "Sat, 21 Nov 2026 08:00:02 +0000"_qba);
}

void TestHeaders::noControlCharacterPasses()
{
    for (const QString &bad : {u"a\r\nBcc: evil@example.org"_s, u"a\nBcc: evil@example.org"_s,
                               u"a\rBcc: evil@example.org"_s, u"a\r\n\r\nbody"_s, u"a\0b"_s,
                               u"a\x7f\x1b\x01z"_s, u"a\u0085\u009fz"_s}) {
        MessageUnderTest mail;
        mail.message.FromName = bad;
        mail.message.Subject = bad;
        mail.message.Mailer = bad;
        mail.message.DateText = bad;
        const ReadPart message = mail.read();
        QCOMPARE(mail.problems, QStringList());
        QCOMPARE(message.headers.size(), 9);
        QVERIFY(message.header("Bcc").isEmpty());
        QCOMPARE(message.outline(), u"text/plain"_s);
    }
}

void TestHeaders::sender_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isUsable");

    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("no address") << u"sender"_s << false;
    QTest::newRow("injection") << u"a@b.example\r\nBcc: c@d"_s << false;
    QTest::newRow("domain with accents") << u"a@münchen.example"_s << true;
    QTest::newRow("plain") << u"a@b.example"_s << true;
}

void TestHeaders::sender()
{
    QFETCH(QString, address);
    QFETCH(bool, isUsable);
    MessageUnderTest mail;
    QVERIFY(mail.builder.build(mail.message, {}));
    mail.message.FromAddress = address;
    const auto letter = mail.builder.build(mail.message, {});
    QCOMPARE(letter.has_value(), isUsable);
    if (!letter)
        QVERIFY(letter.error().startsWith(u"the sender's address cannot be used: "));
}
