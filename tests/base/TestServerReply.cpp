#include "TestServerReply.h"

#include "base/ServerReply.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestServerReply::text_data()
{
    QTest::addColumn<ServerReply>("reply");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << ServerReply{SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"no such user"_s}
                           << u"550 5.1.1 no such user"_s;
    QTest::newRow("no enhanced code")
        << ServerReply{SmtpVerb::Quit, 221, {}, u"bye"_s} << u"221 bye"_s;
    QTest::newRow("code alone") << ServerReply{SmtpVerb::Data, 354, {}, {}} << u"354"_s;
    QTest::newRow("text alone") << ServerReply{SmtpVerb::None, 0, {}, u"connection lost"_s}
                                << u"connection lost"_s;
    QTest::newRow("nothing") << ServerReply{} << QString();
}

void TestServerReply::text()
{
    QFETCH(const ServerReply, reply);
    QFETCH(const QString, text);
    QCOMPARE(reply.toText(), text);
}

void TestServerReply::positiveRepliesAreThoseOf2xxAnd3xx()
{
    for (const int code : {200, 250, 354, 399})
        QVERIFY((ServerReply{SmtpVerb::Data, code, {}, {}}.isPositive()));
    for (const int code : {0, 199, 400, 421, 550})
        QVERIFY(!(ServerReply{SmtpVerb::Data, code, {}, {}}.isPositive()));
}

void TestServerReply::refusalsForNowAreThoseOf4xx()
{
    for (const int code : {400, 421, 499})
        QVERIFY((ServerReply{SmtpVerb::Rcpt, code, {}, {}}.isForNow()));
    for (const int code : {0, 250, 354, 399, 500, 550})
        QVERIFY(!(ServerReply{SmtpVerb::Rcpt, code, {}, {}}.isForNow()));
}

void TestServerReply::commandsHaveTheNamesOfTheDialogue()
{
    QCOMPARE(nameOf(SmtpVerb::None), QString());
    QCOMPARE(nameOf(SmtpVerb::Rcpt), u"RCPT"_s);
    QCOMPARE(nameOf(SmtpVerb::Content), u"end of DATA"_s);
}

void TestServerReply::emptyIsNoReplyAtAll()
{
    QVERIFY(ServerReply{}.isEmpty());
    QVERIFY((ServerReply{SmtpVerb::Mail, 0, {}, {}}.isEmpty()));
    QVERIFY(!(ServerReply{SmtpVerb::Mail, 250, {}, {}}.isEmpty()));
    QVERIFY(!(ServerReply{SmtpVerb::Mail, 0, {}, u"cut"_s}.isEmpty()));
}
