#include "TestNetrc.h"

#include "account/Netrc.h"
#include "support/DiskFiles.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// "machine login password" an entry, with "*" for all hosts.
QStringList texts(const QList<NetrcEntry> &entries)
{
    QStringList all;
    for (const NetrcEntry &entry : entries)
        all.append(entry.machine.value_or(u"*"_s) + u'|' + entry.login + u'|' + entry.password);
    return all;
}

} // namespace

void TestNetrc::entriesAreRead_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("entries");
    const auto row = [](const char *name, const QString &content, const QStringList &entries) {
        QTest::newRow(name) << content << entries;
    };
    row("nothing", {}, {});
    row("one line", u"machine h login u password p"_s, {u"h|u|p"_s});
    row("tokens on lines of their own", u"machine\n h\r\n\tlogin u\npassword\tp\n"_s, {u"h|u|p"_s});
    row("password first", u"machine h password p login u"_s, {u"h|u|p"_s});
    row("two machines and the default",
        u"machine a login u password p\nmachine b login v password q\ndefault login w password r"_s,
        {u"a|u|p"_s, u"b|v|q"_s, u"*|w|r"_s});
    row("an account is left out", u"machine h login u account x password p"_s, {u"h|u|p"_s});
    row("a macro is left out",
        u"machine a login u password p\nmacdef init\nmachine x\ncd /tmp\n\nmachine b login v "
        "password q"_s,
        {u"a|u|p"_s, u"b|v|q"_s});
    row("a macro to the end", u"machine a login u password p\nmacdef init\nmachine x"_s,
        {u"a|u|p"_s});
    row("a macro with CR LF", u"macdef init\r\nmachine x\r\n\r\nmachine b login v password q"_s,
        {u"b|v|q"_s});
    row("quotes", u"machine h login \"a b\" password \"p\\\"q\\\\r\""_s, {u"h|a b|p\"q\\r"_s});
    row("escapes in quotes", u"machine h login u password \"a\\tb\\nc\\rd\""_s,
        {u"h|u|a\tb\nc\rd"_s});
    row("without quotes a backslash is itself", u"machine h login u password a\\b\"c"_s,
        {u"h|u|a\\b\"c"_s});
    row("an empty password in quotes", u"machine h login u password \"\""_s, {u"h|u|"_s});
    row("an open quote", u"machine h login u password \"p"_s, {u"h|u|"_s});
    row("a value is missing", u"machine h login u password"_s, {u"h|u|"_s});
    row("comments", u"# machine x\nmachine h # login y\n  login u password #p\n"_s, {u"h|u|#p"_s});
    row("keywords as values", u"machine machine login login password password"_s,
        {u"machine|login|password"_s});
    row("a login without a machine is nobody's", u"login u password p\nmachine h login v"_s, {});
    row("an unknown word ends it", u"machine a login u password p\nwhat is this\nmachine b"_s,
        {u"a|u|p"_s});
}

void TestNetrc::entriesAreRead()
{
    QFETCH(const QString, content);
    QFETCH(const QStringList, entries);
    QCOMPARE(texts(netrcEntries(content)), entries);
}

void TestNetrc::entryIsForItsHostAndUser_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::newRow("the first of the host") << u"a.org"_s << QString() << u"1"_s;
    QTest::newRow("in whatever case") << u"A.ORG"_s << QString() << u"1"_s;
    QTest::newRow("the user's") << u"a.org"_s << u"v"_s << u"2"_s;
    QTest::newRow("a user is who he is, in his case") << u"a.org"_s << u"V"_s << QString();
    QTest::newRow("without a password it is none") << u"b.org"_s << u"u"_s << QString();
    QTest::newRow("without a login it is none") << u"c.org"_s << QString() << u"9"_s;
    QTest::newRow("the default for every other") << u"x.org"_s << QString() << u"9"_s;
    QTest::newRow("the default for its user") << u"a.org"_s << u"d"_s << u"9"_s;
    QTest::newRow("a part of a name is another host") << u"org"_s << u"u"_s << QString();
}

void TestNetrc::entryIsForItsHostAndUser()
{
    QFETCH(const QString, host);
    QFETCH(const QString, user);
    QFETCH(const QString, password);
    const auto entries = netrcEntries(u"machine a.org login u password 1\n"
                                      "machine a.org login v password 2\n"
                                      "machine b.org login u\n"
                                      "machine c.org password 3\n"
                                      "default login d password 9\n"_s);
    const auto found = netrcEntryFor(entries, host, user);
    QCOMPARE(found ? found->password : QString(), password);
}

void TestNetrc::fileThatIsNotThereHasNoEntries()
{
    const QTemporaryDir folder;
    const auto entries = readNetrc(folder.filePath(u".netrc"_s));
    QVERIFY(entries.has_value());
    QVERIFY(entries->isEmpty());
}

void TestNetrc::fileThatOthersCanReadIsNotUsed_data()
{
    QTest::addColumn<int>("permission");
    QTest::newRow("the group reads") << int{QFile::ReadGroup};
    QTest::newRow("the group writes") << int{QFile::WriteGroup};
    QTest::newRow("others read") << int{QFile::ReadOther};
    QTest::newRow("others write") << int{QFile::WriteOther};
}

void TestNetrc::fileThatOthersCanReadIsNotUsed()
{
    QFETCH(const int, permission);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u".netrc"_s);
    writeFile(path, "machine h login u password topsecret");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner |
                                            QFile::Permissions(permission)));
    const auto entries = readNetrc(path);
    QVERIFY(!entries.has_value());
    QCOMPARE(entries.error(), path + u" can be read or changed by others; the passwords in it are "
                                     "not used. Let nobody but its owner have access to it."_s);
}

void TestNetrc::fileOfItsOwnerIsUsed()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u".netrc"_s);
    writeFile(path, "machine h login \"j\xc3\xbcrgen\" password p");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    const auto entries = readNetrc(path);
    QVERIFY(entries.has_value());
    QCOMPARE(texts(*entries), QStringList(u"h|jürgen|p"_s));
}

void TestNetrc::folderInItsPlaceIsNotUsed()
{
    const QTemporaryDir folder;
    const auto entries = readNetrc(folder.path());
    QVERIFY(!entries.has_value());
    QCOMPARE(entries.error(), folder.path() + u": it is a folder"_s);
}
