#include "TestAccountValues.h"

#include "account/AccountValues.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString hex(QChar digit)
{
    return QString(64, digit);
}

QString colons(const QString &twoDigits)
{
    return QStringList(32, twoDigits).join(u':');
}

} // namespace

void TestAccountValues::everyValueHasItsNameAndItsDefault()
{
    const ServerAccount account;
    QStringList all;
    for (const QString &name : accountValueNames())
        all.append(name + u'=' + accountValue(account, name).value());
    QCOMPARE(all, QStringList({u"User="_s, u"TokenCommand="_s, u"Pipelining=1"_s, u"Chunking=1"_s,
                               u"Trace=0"_s, u"TrustedCertificates="_s, u"StartTls="_s}));
}

void TestAccountValues::whatIsSetIsRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    QTest::newRow("user") << u"User"_s << u"jürgen@example.org"_s << u"jürgen@example.org"_s;
    QTest::newRow("command") << u"TokenCommand"_s << u"get-token \"a b\""_s
                             << u"get-token \"a b\""_s;
    QTest::newRow("off") << u"Pipelining"_s << u"0"_s << u"0"_s;
    QTest::newRow("chunking off") << u"Chunking"_s << u"0"_s << u"0"_s;
    QTest::newRow("on") << u"Trace"_s << u"1"_s << u"1"_s;
    QTest::newRow("certificates as browsers show them, and without colons")
        << u"TrustedCertificates"_s << colons(u"AB"_s) + u"  "_s + hex(u'0')
        << colons(u"AB"_s) + u' ' + colons(u"00"_s);
    QTest::newRow("a certificate twice")
        << u"TrustedCertificates"_s << colons(u"AB"_s) + u' ' + colons(u"ab"_s) << colons(u"AB"_s);
    QTest::newRow("ports") << u"StartTls"_s << u" 587 25  587 "_s << u"587 25"_s;
}

void TestAccountValues::whatIsSetIsRead()
{
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    QFETCH(const QString, read);
    ServerAccount account;
    QVERIFY(setAccountValue(account, name, text));
    QCOMPARE(accountValue(account, name).value(), read);
}

void TestAccountValues::whatMakesNoSenseIsRefusedAndChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("two lines") << u"User"_s << u"a\r\nb"_s;
    QTest::newRow("a NUL") << u"User"_s << u"a"_s + QChar(0) + u"b"_s;
    QTest::newRow("command of two lines") << u"TokenCommand"_s << u"a\nb"_s;
    QTest::newRow("neither 0 nor 1") << u"Pipelining"_s << u"2"_s;
    QTest::newRow("no number") << u"Trace"_s << u"yes"_s;
    QTest::newRow("nothing") << u"Chunking"_s << QString();
    QTest::newRow("too short") << u"TrustedCertificates"_s << hex(u'0').chopped(2);
    QTest::newRow("no digit") << u"TrustedCertificates"_s << hex(u'g');
    QTest::newRow("one of two is wrong") << u"TrustedCertificates"_s << hex(u'0') + u" 00"_s;
    QTest::newRow("port 0") << u"StartTls"_s << u"0"_s;
    QTest::newRow("port too high") << u"StartTls"_s << u"65536"_s;
    QTest::newRow("one of two ports is wrong") << u"StartTls"_s << u"587 smtp"_s;
}

void TestAccountValues::whatMakesNoSenseIsRefusedAndChangesNothing()
{
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    ServerAccount account;
    account.user = u"before"_s;
    account.tokenCommand = u"before"_s;
    account.trustedCertificates = {QByteArray(32, 'x')};
    account.startTlsPorts = {25};
    const ServerAccount before = account;
    QVERIFY(!setAccountValue(account, name, text));
    QCOMPARE(account, before);
}

void TestAccountValues::unknownNameIsNeitherReadNorSet()
{
    ServerAccount account;
    for (const QString &name : {u"Password"_s, u"user"_s, QString()}) {
        QVERIFY(!accountValue(account, name));
        QVERIFY(!setAccountValue(account, name, u"1"_s));
    }
    QCOMPARE(account, ServerAccount());
}

void TestAccountValues::emptyTextForgets()
{
    ServerAccount account;
    account.user = u"me"_s;
    account.tokenCommand = u"command"_s;
    account.trustedCertificates = {QByteArray(32, 'x')};
    account.startTlsPorts = {25};
    for (const char *name : {"User", "TokenCommand", "TrustedCertificates", "StartTls"})
        QVERIFY(setAccountValue(account, QString::fromLatin1(name), {}));
    QCOMPARE(account, ServerAccount());
}
