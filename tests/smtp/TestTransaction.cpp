#include "smtp/TestTransaction.h"

#include "smtp/Dialogue.h"
#include "smtp/client/Transaction.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Outcome = Transaction::Outcome;

Letter letterTo(const QStringList &recipients)
{
    Letter letter;
    letter.sender = *MailAddress::parse(u"sender@example.org");
    for (const QString &recipient : recipients)
        letter.recipients += MailAddress::parse(recipient);
    letter.content.segments = {{"Subject: x\r\n\r\n.dot\r\n"_qba}, {"shared\r\n"_qba, true}};
    return letter;
}

Extensions offering(bool pipelining, bool chunking)
{
    Extensions extensions;
    extensions.pipelining = pipelining;
    extensions.chunking = chunking;
    return extensions;
}

QByteArray joined(const Outgoing &outgoing)
{
    return outgoing.commands + outgoing.content.join();
}

WireReply positiveReplyTo(SmtpVerb verb)
{
    return {verb == SmtpVerb::Data ? 354 : 250, "ok"};
}

/// The dialogue with a server that accepts everything and whose connection takes so many bytes,
/// then is cut; or that answers everything when `bytes` is negative.
Transaction cutAfter(qsizetype bytes, const Extensions &extensions)
{
    Transaction transaction(letterTo({u"anna@example.net"_s, u"bert@example.net"_s}), extensions,
                            true);
    qsizetype written = 0;
    while (!transaction.isSettled()) {
        written += joined(transaction.takeBytes()).size();
        if (bytes >= 0 && written >= bytes) {
            transaction.cut(written == bytes);
            return transaction;
        }
        // The server answers each command when it has come.
        while (transaction.awaited() != SmtpVerb::None) {
            const SmtpVerb verb = transaction.awaited();
            if (!transaction.take(positiveReplyTo(verb)))
                qFatal("an acceptance must fit every command");
        }
    }
    return transaction;
}

/// All that a transaction writes.
qsizetype wholeLength(const Extensions &extensions)
{
    qsizetype bytes = 0;
    while (cutAfter(bytes, extensions).outcome() != Outcome::Accepted)
        ++bytes;
    return bytes - 1;
}

} // namespace

void TestTransaction::cutAfterEachByte_data()
{
    QTest::addColumn<bool>("pipelining");
    QTest::addColumn<bool>("chunking");

    QTest::newRow("CHUNKING") << true << true;
    QTest::newRow("PIPELINING") << true << false;
    QTest::newRow("neither") << false << false;
}

void TestTransaction::cutAfterEachByte()
{
    QFETCH(bool, pipelining);
    QFETCH(bool, chunking);
    const Extensions extensions = offering(pipelining, chunking);
    const qsizetype length = wholeLength(extensions);
    QVERIFY(length > 100);
    for (qsizetype bytes = 0; bytes < length; ++bytes) {
        const Transaction transaction = cutAfter(bytes, extensions);
        QVERIFY(transaction.isSettled());
        QCOMPARE(transaction.outcome(), Outcome::NotTaken);
    }
    QCOMPARE(cutAfter(length, extensions).outcome(), Outcome::InDoubt);
    QCOMPARE(cutAfter(-1, extensions).outcome(), Outcome::Accepted);
}

void TestTransaction::sharedContent()
{
    const Letter letter = letterTo({u"anna@example.net"_s});
    const QByteArray &shared = letter.content.segments.constLast().lines;
    const auto shares = [&](const Outgoing &outgoing) {
        return std::ranges::any_of(outgoing.content, [&](const QByteArray &piece) {
            return piece.constData() == shared.constData();
        });
    };
    Transaction chunking(letter, offering(true, true), false);
    QVERIFY(shares(chunking.takeBytes()));

    Transaction data(letter, offering(true, false), false);
    QCOMPARE(joined(data.takeBytes()), "RSET\r\nMAIL FROM:<sender@example.org>\r\n"
                                       "RCPT TO:<anna@example.net>\r\nDATA\r\n"_qba);
    QCOMPARE(joined(data.takeBytes()), QByteArray());
    while (data.awaited() != SmtpVerb::None)
        QVERIFY(data.take(positiveReplyTo(data.awaited())));
    const Outgoing outgoing = data.takeBytes();
    QVERIFY(shares(outgoing));
    QCOMPARE(joined(outgoing), "Subject: x\r\n\r\n..dot\r\nshared\r\n.\r\n"_qba);
}

void TestTransaction::stuffing_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QByteArray>("stuffed");

    QTest::newRow("no dot") << "a\r\nb.\r\n"_qba
                            << "a\r\nb.\r\n"_qba;
    QTest::newRow("at the very start") << ".a\r\n"_qba
                                       << "..a\r\n"_qba;
    QTest::newRow("after a line end") << "a\r\n.b\r\n"_qba
                                      << "a\r\n..b\r\n"_qba;
    QTest::newRow("a lone dot") << "a\r\n.\r\nb\r\n"_qba
                                << "a\r\n..\r\nb\r\n"_qba;
    QTest::newRow("several lone dots") << ".\r\n.\r\n.\r\n"_qba
                                       << "..\r\n..\r\n..\r\n"_qba;
    QTest::newRow("two dots") << "..a\r\n"_qba
                              << "...a\r\n"_qba;
    QTest::newRow("nothing") << ""_qba
                             << ""_qba;
}

void TestTransaction::stuffing()
{
    QFETCH(QByteArray, lines);
    QFETCH(QByteArray, stuffed);
    QCOMPARE(Segment{lines}.stuffed(), stuffed);
    if (lines == stuffed)
        QCOMPARE(Segment{lines}.stuffed().constData(), lines.constData());
}

void TestTransaction::nothingToWrite_data()
{
    QTest::addColumn<QStringList>("recipients");
    QTest::addColumn<qint64>("largest");
    QTest::addColumn<QString>("replies");

    const QString injection = u"the address holds characters that no address may hold"_s;
    QTest::newRow("the message is too large")
        << QStringList{u"a@x.example"_s, u"b@x.example"_s} << qint64(20)
        << u"the message has 28 bytes, and the server takes no more than 20 | "
           u"the message has 28 bytes, and the server takes no more than 20"_s;
    QTest::newRow("no recipient is an address")
        << QStringList{u"a>\r\nRCPT TO:<b@x.example"_s, u""_s} << qint64(0)
        << injection + u" | the address is empty"_s;
    QTest::newRow("not ASCII before the \"@\"")
        << QStringList{u"ànna@x.example"_s} << qint64(0)
        << u"the address is not ASCII before its \"@\", and the server does not take such "
           u"addresses"_s;
}

void TestTransaction::nothingToWrite()
{
    QFETCH(QStringList, recipients);
    QFETCH(qint64, largest);
    QFETCH(QString, replies);
    Extensions extensions = offering(true, true);
    extensions.size = true;
    extensions.largestMessage = largest;
    Transaction transaction(letterTo(recipients), extensions, true);
    QVERIFY(transaction.isSettled());
    QCOMPARE(joined(transaction.takeBytes()), QByteArray());
    QCOMPARE(transaction.outcome(), Outcome::Refused);
    QCOMPARE(repliesText(transaction.replies()), replies);
}

void TestTransaction::smtpUtf8()
{
    Extensions extensions = offering(true, true);
    extensions.smtpUtf8 = true;
    const auto firstLines = [&](const Letter &letter) {
        return joined(Transaction(letter, extensions, false).takeBytes());
    };
    QVERIFY(!firstLines(letterTo({u"anna@münchen.example"_s})).contains("SMTPUTF8"));
    QVERIFY(firstLines(letterTo({u"anna@x.example"_s, u"ànna@x.example"_s}))
                .contains("MAIL FROM:<sender@example.org> SMTPUTF8\r\n"));

    Letter letter = letterTo({u"anna@x.example"_s});
    letter.headersNeedSmtpUtf8 = true;
    QVERIFY(firstLines(letter).contains("SMTPUTF8"));
    extensions.smtpUtf8 = false;
    QCOMPARE(Transaction(letter, extensions, false).outcome(), Outcome::Refused);
}
