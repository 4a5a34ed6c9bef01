#include "smtp/TestMailAddress.h"

#include "smtp/client/HostName.h"
#include "smtp/client/MailAddress.h"

#include <QHostAddress>
#include <QTest>

using namespace Qt::StringLiterals;

void TestMailAddress::usable_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("needsSmtpUtf8");

    QTest::newRow("plain") << u"anna@example.net"_s << "anna@example.net"_qba << false;
    QTest::newRow("blanks around") << u" anna@example.net\t"_s << "anna@example.net"_qba << false;
    QTest::newRow("capitals stay") << u"Anna@Example.NET"_s << "Anna@Example.NET"_qba << false;
    QTest::newRow("signs") << u"o'neil+list_1=x/y@example.net"_s
                           << "o'neil+list_1=x/y@example.net"_qba << false;
    QTest::newRow("quoted") << u"\"anna rossi\"@example.net"_s << "\"anna rossi\"@example.net"_qba
                            << false;
    QTest::newRow("quoted with an at sign")
        << u"\"a@b\"@example.net"_s << "\"a@b\"@example.net"_qba << false;
    QTest::newRow("domain with accents")
        << u"anna@münchen.example"_s << "anna@xn--mnchen-3ya.example"_qba << false;
    QTest::newRow("accent before the at sign")
        << u"andré@example.net"_s << "andré@example.net"_qba << true;
    QTest::newRow("one label") << u"root@localhost"_s << "root@localhost"_qba << false;
    QTest::newRow("address literal") << u"anna@[192.0.2.1]"_s << "anna@[192.0.2.1]"_qba << false;
    QTest::newRow("IPv6 literal") << u"anna@[IPv6:2001:db8::1]"_s << "anna@[IPv6:2001:db8::1]"_qba
                                  << false;
}

void TestMailAddress::usable()
{
    QFETCH(QString, written);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, needsSmtpUtf8);
    const auto address = MailAddress::parse(written);
    QVERIFY(address);
    QCOMPARE(address->bytes, bytes);
    QCOMPARE(address->needsSmtpUtf8, needsSmtpUtf8);
}

void TestMailAddress::unusable_data()
{
    QTest::addColumn<QString>("written");

    QTest::newRow("empty") << u""_s;
    QTest::newRow("blanks") << u"  "_s;
    QTest::newRow("no at sign") << u"anna.example.net"_s;
    QTest::newRow("nothing before it") << u"@example.net"_s;
    QTest::newRow("nothing behind it") << u"anna@"_s;
    QTest::newRow("blank inside") << u"anna rossi@example.net"_s;
    QTest::newRow("blank in the domain") << u"anna@example.net SIZE=1"_s;
    QTest::newRow("angle brackets") << u"<anna@example.net>"_s;
    QTest::newRow("a second command") << u"anna@example.net>\r\nDATA"_s;
    QTest::newRow("a second command before the at sign") << u"x>\r\nDATA\r\n@example.net"_s;
    QTest::newRow("a line end at the end is taken off, one inside is not")
        << u"anna@exam\nple.net"_s;
    QTest::newRow("NUL") << u"an\0na@example.net"_s;
    QTest::newRow("a line end inside quotes") << u"\"a\r\nb\"@example.net"_s;
    QTest::newRow("a quote inside quotes") << u"\"a\"b\"@example.net"_s;
    QTest::newRow("a backslash inside quotes") << u"\"a\\\"@example.net"_s;
    QTest::newRow("several addresses") << u"a@x.example,b@x.example"_s;
    QTest::newRow("several addresses, semicolon") << u"a@x.example;b@x.example"_s;
    QTest::newRow("a comment") << u"anna(home)@example.net"_s;
    QTest::newRow("a bracket in the domain") << u"anna@exa[mple.net"_s;
    QTest::newRow("C1 control character") << u"an\u0085na@example.net"_s;
    QTest::newRow("half a character") << u"an"_s + QChar(0xd800) + u"na@example.net"_s;
    QTest::newRow("no domain after conversion") << u"anna@\u00ad"_s;
    QTest::newRow("longer than a path may be") << QString(300, u'a') + u"@example.net"_s;
}

void TestMailAddress::unusable()
{
    QFETCH(QString, written);
    const auto address = MailAddress::parse(written);
    QVERIFY(!address);
    QVERIFY(!address.error().isEmpty());
}

void TestMailAddress::ehloName_data()
{
    QTest::addColumn<QString>("hostName");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QByteArray>("name");

    const QString ip4 = u"192.0.2.1"_s;
    QTest::newRow("full name") << u"pc.example.net"_s << ip4 << "pc.example.net"_qba;
    QTest::newRow("capitals") << u"PC.Example.net"_s << ip4 << "pc.example.net"_qba;
    QTest::newRow("accents") << u"pc.münchen.example"_s << ip4 << "pc.xn--mnchen-3ya.example"_qba;
    QTest::newRow("none") << u""_s << ip4 << "[192.0.2.1]"_qba;
    QTest::newRow("one label is no full name") << u"pc"_s << ip4 << "[192.0.2.1]"_qba;
    QTest::newRow("characters of no domain") << u"my_pc.example net"_s << ip4 << "[192.0.2.1]"_qba;
    QTest::newRow("IPv6") << u""_s << u"2001:db8::1"_s << "[IPv6:2001:db8::1]"_qba;
    QTest::newRow("IPv6 with a scope") << u""_s << u"fe80::1%eth0"_s << "[IPv6:fe80::1]"_qba;
}

void TestMailAddress::ehloName()
{
    QFETCH(QString, hostName);
    QFETCH(QString, address);
    QFETCH(QByteArray, name);
    QCOMPARE(::ehloName(hostName, QHostAddress(address)), name);
}
