#include "TestLoginChain.h"

#include "ChainRig.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestLoginChain::commandForTokensComesBeforeAllOthers()
{
    ChainRig rig(u"echo from-command"_s);
    rig.setAccount(u"me"_s, u"echo the-token"_s);
    rig.keyring.passwords.insert(u"me@smtp.example.org"_s, u"from-keyring"_s);
    QCOMPARE(rig.found(), u"token me the-token"_s);
}

void TestLoginChain::commandForPasswordsComesBeforeTheKeyring()
{
    ChainRig rig(u"echo from-command"_s);
    rig.setAccount(u"me"_s);
    rig.keyring.passwords.insert(u"me@smtp.example.org"_s, u"from-keyring"_s);
    QCOMPARE(rig.found(), u"password me from-command"_s);
}

void TestLoginChain::commandsNeedAUserName()
{
    const QString reason = u"the account has no user name; set it with: sorvanta-cli account "
                           "Smtp.example.org User NAME"_s;
    ChainRig rig(u"echo from-command"_s);
    QCOMPARE(rig.found(), reason);
    rig.setAccount({}, u"echo the-token"_s);
    QCOMPARE(rig.found(), reason);
}

void TestLoginChain::commandThatFailsIsTheReason()
{
    ChainRig rig(u"false"_s);
    rig.setAccount(u"me"_s);
    rig.keyring.passwords.insert(u"me@smtp.example.org"_s, u"from-keyring"_s);
    QCOMPARE(rig.found(), u"the command \"false\" failed with exit status 1"_s);
    rig.setAccount(u"me"_s, u"true"_s);
    QCOMPARE(rig.found(), u"the command \"true\" printed nothing"_s);
    QVERIFY(rig.prompt.boxes.isEmpty());
}

void TestLoginChain::keyringComesBeforeTheNetrcFile()
{
    ChainRig rig;
    rig.setAccount(u"me"_s);
    rig.keyring.passwords.insert(u"me@smtp.example.org"_s, u"from-keyring"_s);
    rig.writeNetrc("machine smtp.example.org login me password from-netrc");
    QCOMPARE(rig.found(), u"password me from-keyring"_s);
    rig.keyring.available = false;
    QCOMPARE(rig.found(), u"password me from-netrc"_s);
}

void TestLoginChain::keyringIsNotAskedWithoutAUserName()
{
    ChainRig rig;
    rig.writeNetrc("machine smtp.example.org login you password from-netrc");
    QCOMPARE(rig.found(), u"password you from-netrc"_s);
    QVERIFY(rig.keyring.reads.isEmpty());
}

void TestLoginChain::netrcFileComesBeforeThePerson()
{
    ChainRig rig;
    rig.setAccount(u"me"_s);
    rig.writeNetrc("machine smtp.example.org login you password p\n"
                   "machine SMTP.EXAMPLE.ORG login me password q");
    QCOMPARE(rig.found(), u"password me q"_s);
    QVERIFY(rig.prompt.boxes.isEmpty());
}

void TestLoginChain::netrcFileOfOthersIsSaidOnceAndThePersonAsked()
{
    ChainRig rig;
    rig.writeNetrc("machine smtp.example.org login me password p", QFile::ReadOther);
    QCOMPARE(rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s}), u"password me typed"_s);
    QCOMPARE(rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s}), u"password me typed"_s);
    const auto notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.constFirst().icon, Icon::Exclamation);
    QVERIFY(notices.constFirst().text.contains(u"can be read or changed by others"_s));
}

void TestLoginChain::personIsAskedWhenNothingIsKnown()
{
    ChainRig rig;
    QCOMPARE(rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s}), u"password me typed"_s);
    QCOMPARE(rig.prompt.boxes.size(), 1);
    QCOMPARE(rig.prompt.boxes.constFirst().server, u"Smtp.example.org:587"_s);
    QCOMPARE(rig.prompt.boxes.constFirst().user, QString());
    QCOMPARE(rig.prompt.boxes.constFirst().refusal, QString());
    rig.setAccount(u"you"_s);
    QCOMPARE(rig.foundByAsking(LoginEntry{u"you"_s, u"typed"_s}), u"password you typed"_s);
    QCOMPARE(rig.prompt.boxes.constLast().user, u"you"_s);
}

void TestLoginChain::boxOffersToRememberOnlyWithAKeyring()
{
    ChainRig rig;
    rig.foundByAsking({});
    QVERIFY(rig.prompt.boxes.constLast().canRemember);
    rig.keyring.available = false;
    rig.foundByAsking({});
    QVERIFY(!rig.prompt.boxes.constLast().canRemember);
}

void TestLoginChain::withoutAPersonTheReasonSaysWhatToDo()
{
    ChainRig rig;
    rig.sendPersonAway();
    QCOMPARE(rig.found(),
             u"no login is known; put one into the file .netrc of your home folder, or name a "
             "command that prints the password with --password-command"_s);
}

void TestLoginChain::cancelIsAReason()
{
    ChainRig rig;
    QCOMPARE(rig.foundByAsking({}), u"the login was cancelled"_s);
}

void TestLoginChain::acceptedLoginIsUsedAgainOnEveryPortOfTheHost()
{
    ChainRig rig;
    rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s});
    rig.accept(u"me"_s, u"typed"_s);
    rig.server = {u"SMTP.EXAMPLE.ORG"_s, 465};
    QCOMPARE(rig.found(), u"password me typed"_s);
    QCOMPARE(rig.prompt.boxes.size(), 1);
    rig.server.host = u"other.example.org"_s;
    QCOMPARE(rig.foundByAsking({}), u"the login was cancelled"_s);
}

void TestLoginChain::acceptedLoginOfAnotherUserIsNotUsed()
{
    ChainRig rig;
    rig.accept(u"me"_s, u"secret"_s);
    rig.setAccount(u"you"_s);
    QCOMPARE(rig.foundByAsking(LoginEntry{u"you"_s, u"typed"_s}), u"password you typed"_s);
}

void TestLoginChain::passwordKeptInTheKeyringReplacesTheAcceptedOne()
{
    ChainRig rig;
    rig.setAccount(u"me"_s);
    rig.accept(u"me"_s, u"old"_s);
    rig.keyring.write(rig.server.host.toLower(), u"me"_s, u"new"_s, [](const QString &) {});
    QCOMPARE(rig.found(), u"password me new"_s);
}

void TestLoginChain::acceptedPasswordIsNotUsedInPlaceOfAToken()
{
    ChainRig rig;
    rig.accept(u"me"_s, u"old"_s);
    rig.setAccount(u"me"_s, u"echo token"_s);
    QCOMPARE(rig.found(), u"token me token"_s);
}

void TestLoginChain::tokenIsAskedForAnewEachTime()
{
    ChainRig rig;
    rig.setAccount(u"me"_s, u"echo new"_s);
    rig.accept(u"me"_s, u"old"_s, Login::Kind::Token);
    QCOMPARE(rig.found(), u"token me new"_s);
}

void TestLoginChain::refusedLoginIsForgotten()
{
    ChainRig rig;
    rig.accept(u"me"_s, u"secret"_s);
    rig.refuse(u"me"_s, u"secret"_s);
    QCOMPARE(rig.foundByAsking({}), u"the login was cancelled"_s);
}

void TestLoginChain::refusalOfAnotherLoginForgetsNothing()
{
    ChainRig rig;
    rig.accept(u"me"_s, u"secret"_s);
    rig.refuse(u"me"_s, u"older"_s);
    QCOMPARE(rig.found(), u"password me secret"_s);
}

void TestLoginChain::afterARefusalOnlyThePersonIsAsked()
{
    ChainRig rig(u"echo from-command"_s);
    rig.setAccount(u"me"_s, u"echo the-token"_s);
    rig.keyring.passwords.insert(u"me@smtp.example.org"_s, u"from-keyring"_s);
    rig.writeNetrc("machine smtp.example.org login me password from-netrc");
    QCOMPARE(rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s}, 1, u"wrong password"_s),
             u"password me typed"_s);
    QCOMPARE(rig.prompt.boxes.constLast().refusal, u"wrong password"_s);
    QVERIFY(rig.keyring.reads.isEmpty());
}

void TestLoginChain::afterARefusalWithoutAPersonTheAnswerIsTheRefusal()
{
    ChainRig rig(u"echo from-command"_s);
    rig.sendPersonAway();
    rig.setAccount(u"me"_s);
    QCOMPARE(rig.found(1, u"wrong password"_s), u"wrong password"_s);
}

void TestLoginChain::boxAfterARefusalBeginsWithTheUserWhoWasRefused()
{
    ChainRig rig;
    rig.foundByAsking(LoginEntry{u"me"_s, u"wrong"_s});
    rig.refuse(u"me"_s, u"wrong"_s);
    rig.foundByAsking({}, 1, u"wrong password"_s);
    QCOMPARE(rig.prompt.boxes.constLast().user, u"me"_s);
}

void TestLoginChain::acceptedEntryKeepsTheNameAlone()
{
    ChainRig rig;
    rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s});
    QCOMPARE(rig.accounts.account(u"smtp.example.org"_s).user, QString());
    rig.accept(u"me"_s, u"typed"_s);
    QCOMPARE(rig.accounts.account(u"smtp.example.org"_s).user, u"me"_s);
    QVERIFY(rig.keyring.passwords.isEmpty());
}

void TestLoginChain::acceptedEntryIsRememberedWhenThePersonSaysSo()
{
    ChainRig rig;
    rig.setAccount(u"me"_s);
    rig.keyring.passwords.insert(u"me@smtp.example.org"_s, u"old"_s);
    rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s, true}, 1, u"wrong password"_s);
    QCOMPARE(rig.keyring.passwords.value(u"me@smtp.example.org"_s), u"old"_s);
    rig.accept(u"me"_s, u"typed"_s);
    QCOMPARE(rig.keyring.passwords.value(u"me@smtp.example.org"_s), u"typed"_s);
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestLoginChain::refusedEntryIsNotRemembered()
{
    ChainRig rig;
    rig.foundByAsking(LoginEntry{u"me"_s, u"wrong"_s, true});
    rig.refuse(u"me"_s, u"wrong"_s);
    rig.accept(u"me"_s, u"of another session"_s);
    QVERIFY(rig.keyring.passwords.isEmpty());
    QCOMPARE(rig.accounts.account(u"smtp.example.org"_s).user, QString());
}

void TestLoginChain::laterEntryThatIsNotToBeRememberedIsNot()
{
    ChainRig rig;
    rig.foundByAsking(LoginEntry{u"me"_s, u"wrong"_s, true});
    rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s}, 1, u"wrong password"_s);
    rig.accept(u"me"_s, u"typed"_s);
    QVERIFY(rig.keyring.passwords.isEmpty());
}

void TestLoginChain::loginThatNobodyEnteredKeepsNoName()
{
    ChainRig rig;
    rig.writeNetrc("machine smtp.example.org login me password p");
    rig.found();
    rig.accept(u"me"_s, u"p"_s);
    QCOMPARE(rig.accounts.account(u"smtp.example.org"_s).user, QString());
}

void TestLoginChain::passwordThatCannotBeRememberedIsSaid()
{
    ChainRig rig;
    rig.keyring.failure = u"the keyring is locked"_s;
    rig.foundByAsking(LoginEntry{u"me"_s, u"typed"_s, true});
    rig.accept(u"me"_s, u"typed"_s);
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList(u"The password could not be remembered: the keyring is locked"_s));
}

void TestLoginChain::answersAreNeverGivenFromInsideTheCall()
{
    ChainRig rig;
    rig.accept(u"me"_s, u"secret"_s);
    rig.find();
    QVERIFY(rig.answers.isEmpty());
    FakeServer::settle();
    QCOMPARE(rig.answers, QStringList(u"password me secret"_s));
}

void TestLoginChain::requestThatNoLongerStandsGetsNoAnswer_data()
{
    QTest::addColumn<QString>("tokenCommand");
    QTest::addColumn<QString>("keptPassword");
    QTest::addColumn<QString>("acceptedPassword");
    QTest::newRow("from memory") << QString() << QString() << u"secret"_s;
    QTest::newRow("from a command") << u"echo token"_s << QString() << QString();
    QTest::newRow("from the keyring") << QString() << u"secret"_s << QString();
    QTest::newRow("from the person") << QString() << QString() << QString();
}

void TestLoginChain::requestThatNoLongerStandsGetsNoAnswer()
{
    QFETCH(const QString, tokenCommand);
    QFETCH(const QString, keptPassword);
    QFETCH(const QString, acceptedPassword);
    ChainRig rig;
    rig.setAccount(u"me"_s, tokenCommand);
    if (!keptPassword.isEmpty())
        rig.keyring.passwords.insert(u"me@smtp.example.org"_s, keptPassword);
    if (!acceptedPassword.isEmpty())
        rig.accept(u"me"_s, acceptedPassword);
    rig.find();
    rig.stands = false;
    QVERIFY(FakeServer::waitUntil([&rig] { return rig.standsAsked > 0; }));
    FakeServer::settle();
    QCOMPARE(rig.answers, QStringList());
    QCOMPARE(rig.prompt.openBoxes(), 0);
}

void TestLoginChain::boxOfARequestThatIsDroppedCloses()
{
    ChainRig rig;
    rig.find();
    FakeServer::settle();
    QCOMPARE(rig.prompt.openBoxes(), 1);
    rig.chain->dropStale();
    FakeServer::settle();
    QCOMPARE(rig.prompt.boxesLeft(), 1);
    rig.stands = false;
    rig.chain->dropStale();
    FakeServer::settle();
    QCOMPARE(rig.prompt.boxesLeft(), 0);
    QCOMPARE(rig.answers, QStringList());
}

void TestLoginChain::twoRequestsAreIndependent()
{
    ChainRig rig;
    rig.find();
    rig.server.host = u"other.example.org"_s;
    rig.find();
    FakeServer::settle();
    QCOMPARE(rig.prompt.openBoxes(), 2);
    rig.prompt.answer({});
    rig.prompt.answer(LoginEntry{u"me"_s, u"typed"_s});
    FakeServer::settle();
    QCOMPARE(rig.answers, QStringList({u"the login was cancelled"_s, u"password me typed"_s}));
}

void TestLoginChain::whatTwoSessionsAskForIsEnteredOnce()
{
    ChainRig rig;
    rig.setAccount(u"me"_s);
    rig.find();
    rig.find();
    FakeServer::settle();
    QCOMPARE(rig.prompt.openBoxes(), 2);
    rig.prompt.answer(LoginEntry{u"me"_s, u"typed"_s});
    FakeServer::settle();
    QCOMPARE(rig.answers, QStringList(u"password me typed"_s));
    rig.accept(u"me"_s, u"typed"_s);
    QCOMPARE(rig.prompt.openBoxes(), 0);
    QCOMPARE(rig.answers, QStringList({u"password me typed"_s, u"password me typed"_s}));
}

void TestLoginChain::anotherUserOrServerOrOneWhoWasRefusedIsStillAskedFor()
{
    ChainRig rig;
    rig.setAccount(u"me"_s);
    rig.find();
    rig.find(1, u"wrong"_s);
    rig.server.host = u"other.example.org"_s;
    rig.find();
    FakeServer::settle();
    rig.server.host = u"smtp.example.org"_s;
    rig.accept(u"somebody else"_s, u"theirs"_s);
    QCOMPARE(rig.prompt.openBoxes(), 3);
    rig.accept(u"me"_s, u"mine"_s);
    QCOMPARE(rig.prompt.openBoxes(), 2);
    QCOMPARE(rig.answers, QStringList(u"password me mine"_s));
}

void TestLoginChain::chainThatIsGoneAnswersNothing()
{
    ChainRig rig;
    rig.find();
    FakeServer::settle();
    rig.setAccount(u"me"_s);
    rig.find();
    rig.chain.reset();
    QCOMPARE(rig.prompt.openBoxes(), 0);
    FakeServer::settle();
    QCOMPARE(rig.answers, QStringList());
}
