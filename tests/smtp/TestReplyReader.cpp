#include "smtp/TestReplyReader.h"

#include "smtp/client/Extensions.h"
#include "smtp/client/ReplyReader.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestReplyReader::reply_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("enhanced");
    QTest::addColumn<QString>("text");

    QTest::newRow("code and text") << "250 ok\r\n"_qba << 250 << u""_s << u"ok"_s;
    QTest::newRow("code alone") << "250\r\n"_qba << 250 << u""_s << u""_s;
    QTest::newRow("code and blank") << "250 \r\n"_qba << 250 << u""_s << u""_s;
    QTest::newRow("LF alone") << "250 ok\n"_qba << 250 << u""_s << u"ok"_s;
    QTest::newRow("enhanced code")
        << "550 5.1.1 no such user\r\n"_qba << 550 << u"5.1.1"_s << u"no such user"_s;
    QTest::newRow("enhanced code of three digits")
        << "550 5.7.515 no\r\n"_qba << 550 << u"5.7.515"_s << u"no"_s;
    QTest::newRow("enhanced code alone") << "250 2.0.0\r\n"_qba << 250 << u"2.0.0"_s << u""_s;
    QTest::newRow("enhanced code in each line")
        << "550-5.7.1 not\r\n550-5.7.1 from\r\n550 5.7.1 you\r\n"_qba << 550 << u"5.7.1"_s
        << u"not from you"_s;
    QTest::newRow("enhanced code of another class is text")
        << "550 2.0.0 odd\r\n"_qba << 550 << u""_s << u"2.0.0 odd"_s;
    QTest::newRow("an address is no enhanced code")
        << "250 2.168.1.1 at your service\r\n"_qba << 250 << u""_s
        << u"2.168.1.1 at your service"_s;
    QTest::newRow("a number of four digits is no enhanced code")
        << "250 2.1.5000 ok\r\n"_qba << 250 << u""_s << u"2.1.5000 ok"_s;
    QTest::newRow("several lines, one empty")
        << "250-one\r\n250-\r\n250\r\n"_qba << 250 << u""_s << u"one"_s;
    QTest::newRow("accents") << "550 perché no\r\n"_qba << 550 << u""_s << u"perché no"_s;
    QTest::newRow("accents, not UTF-8")
        << "550 perch\xe9 no\r\n"_qba << 550 << u""_s << u"perché no"_s;
    QTest::newRow("control characters become blanks")
        << QByteArray("550 a\0b\x1b[31mc\rd\r\n", 17) << 550 << u""_s << u"a b [31mc d"_s;
}

void TestReplyReader::reply()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    QFETCH(QString, enhanced);
    QFETCH(QString, text);
    const ServerReply expected{SmtpVerb::Mail, code, enhanced, text};

    // In chunks of any size the reply is the same, and comes with its last byte.
    for (qsizetype size = 1; size <= bytes.size(); ++size) {
        ReplyReader reader{Limits()};
        std::optional<WireReply> read;
        for (qsizetype at = 0; at < bytes.size(); at += size) {
            QVERIFY(!read);
            reader.feed(QByteArrayView(bytes).sliced(at, std::min(size, bytes.size() - at)));
            const auto next = reader.next();
            QVERIFY(next);
            read = *next;
        }
        QVERIFY(read);
        QCOMPARE(read->toServerReply(SmtpVerb::Mail), expected);
        QVERIFY(!reader.next()->has_value());
    }
}

void TestReplyReader::severalReplies()
{
    ReplyReader reader{Limits()};
    reader.feed("250 one\r\n354-two\r\n354 lines\r\n55");
    QCOMPARE((*reader.next())->lines, "one"_qba);
    QCOMPARE((*reader.next())->lines, "two\nlines"_qba);
    QVERIFY(!reader.next()->has_value());
    reader.feed("0 three\r\n");
    QCOMPARE((*reader.next())->code, 550);
}

void TestReplyReader::notAReply_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("words") << "hello\r\n"_qba;
    QTest::newRow("empty line") << "\r\n"_qba;
    QTest::newRow("two digits") << "25 ok\r\n"_qba;
    QTest::newRow("four digits") << "2500 ok\r\n"_qba;
    QTest::newRow("code below 200") << "150 ok\r\n"_qba;
    QTest::newRow("code above 599") << "600 ok\r\n"_qba;
    QTest::newRow("another protocol") << "HTTP/1.1 400 Bad Request\r\n"_qba;
    QTest::newRow("another code in the second line") << "250-one\r\n550 two\r\n"_qba;
    QTest::newRow("no code in the second line") << "250-one\r\ntwo\r\n"_qba;
    QTest::newRow("a byte before the code") << " 250 ok\r\n"_qba;
}

void TestReplyReader::notAReply()
{
    QFETCH(QByteArray, bytes);
    ReplyReader reader{Limits()};
    reader.feed(bytes);
    QVERIFY(!reader.next());
}

void TestReplyReader::limits()
{
    Limits limits;
    limits.replyLineLength = 10;
    limits.replyLines = 3;

    ReplyReader fits{limits};
    fits.feed("250-67890\r\n250-\r\n250 \r\n");
    QVERIFY(fits.next()->has_value());

    ReplyReader endlessLine{limits};
    endlessLine.feed("250 6789012");
    QVERIFY(!endlessLine.next());

    ReplyReader endlessReply{limits};
    endlessReply.feed("250-a\r\n250-b\r\n250-c\r\n250-d\r\n");
    QVERIFY(!endlessReply.next());
}

void TestReplyReader::extensions_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("found");

    QTest::newRow("none") << "server.example"_qba << u""_s;
    QTest::newRow("all") << "server.example\nPIPELINING\nCHUNKING\nSMTPUTF8\nSIZE 1000\nHELP"_qba
                         << u"pipelining chunking smtputf8 size=1000"_s;
    QTest::newRow("any case, odd blanks")
        << "server.example\n Pipelining \nsize   99\t"_qba << u"pipelining size=99"_s;
    QTest::newRow("size without a limit") << "server.example\nSIZE"_qba << u"size=0"_s;
    QTest::newRow("size that is no number") << "server.example\nSIZE lots"_qba << u"size=0"_s;
    QTest::newRow("size below nothing") << "server.example\nSIZE -5"_qba << u"size=0"_s;
    QTest::newRow("the first line names the server") << "PIPELINING\nCHUNKING"_qba << u"chunking"_s;
    QTest::newRow("a longer word") << "server.example\nPIPELININGS\nX-CHUNKING"_qba << u""_s;
}

void TestReplyReader::extensions()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, found);
    const Extensions extensions = Extensions::fromEhlo(lines);
    QStringList names;
    if (extensions.pipelining)
        names += u"pipelining"_s;
    if (extensions.chunking)
        names += u"chunking"_s;
    if (extensions.smtpUtf8)
        names += u"smtputf8"_s;
    if (extensions.size)
        names += u"size=%1"_s.arg(extensions.largestMessage);
    QCOMPARE(names.join(u' '), found);
}
