#include "TestKeyring.h"

#include "KeyringAnswers.h"

using namespace Qt::StringLiterals;

void TestKeyring::initTestCase()
{
    // The real one of whoever runs the tests is not to be touched.
    QVERIFY(qEnvironmentVariable("HOME").startsWith(u"/tmp/"_s));
    QVERIFY(qEnvironmentVariable("XDG_DATA_HOME").startsWith(qEnvironmentVariable("HOME")));
}

void TestKeyring::keyringIsThere()
{
    KeyringAnswers keyring;
    QVERIFY(keyring.isAvailable());
}

void TestKeyring::whatIsWrittenIsRead()
{
    KeyringAnswers keyring;
    const QString password = u" pass wörd \"'\\\n€ "_s;
    QCOMPARE(keyring.write(u"smtp.example.org"_s, u"me@example.org"_s, password), QString());
    QCOMPARE(keyring.read(u"smtp.example.org"_s, u"me@example.org"_s), password);
}

void TestKeyring::hostIsTheSameInWhateverCase()
{
    KeyringAnswers keyring;
    QCOMPARE(keyring.write(u"Case.Example.org"_s, u"me"_s, u"p"_s), QString());
    QCOMPARE(keyring.read(u"case.EXAMPLE.org"_s, u"me"_s), u"p"_s);
}

void TestKeyring::anotherUserOrHostHasNoPassword()
{
    KeyringAnswers keyring;
    QCOMPARE(keyring.write(u"a.example.org"_s, u"me"_s, u"p"_s), QString());
    QCOMPARE(keyring.read(u"a.example.org"_s, u"you"_s), u"nothing"_s);
    QCOMPARE(keyring.read(u"a.example.org"_s, u"Me"_s), u"nothing"_s);
    QCOMPARE(keyring.read(u"example.org"_s, u"me"_s), u"nothing"_s);
}

void TestKeyring::laterPasswordTakesThePlaceOfTheEarlier()
{
    KeyringAnswers keyring;
    QCOMPARE(keyring.write(u"b.example.org"_s, u"me"_s, u"old"_s), QString());
    QCOMPARE(keyring.write(u"b.example.org"_s, u"me"_s, u"new"_s), QString());
    QCOMPARE(keyring.read(u"b.example.org"_s, u"me"_s), u"new"_s);
}

void TestKeyring::whatIsRemovedIsGone()
{
    KeyringAnswers keyring;
    QCOMPARE(keyring.write(u"c.example.org"_s, u"me"_s, u"p"_s), QString());
    QCOMPARE(keyring.remove(u"c.example.org"_s, u"me"_s), QString());
    QCOMPARE(keyring.read(u"c.example.org"_s, u"me"_s), u"nothing"_s);
}

void TestKeyring::removingWhatIsNotThereIsNoFailure()
{
    KeyringAnswers keyring;
    QCOMPARE(keyring.remove(u"d.example.org"_s, u"me"_s), QString());
}

void TestKeyring::answersOfAKeyringThatIsGoneDoNotCome()
{
    bool answered = false;
    {
        Keyring keyring;
        keyring.isAvailable([&answered](bool) { answered = true; });
    }
    // Jobs are done one after the other: when this one is through, the other was before.
    KeyringAnswers later;
    QVERIFY(later.isAvailable());
    QVERIFY(!answered);
}
