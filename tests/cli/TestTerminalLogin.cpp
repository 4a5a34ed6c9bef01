#include "TestTerminalLogin.h"

#include "cli/TerminalLogin.h"
#include "support/FakeServer.h"
#include "support/PseudoTerminal.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Rig
{
    void ask(const LoginBox &what)
    {
        login->askLogin(
            what, [this] { return stands; },
            [this](const std::optional<LoginEntry> &entry) {
                answers.append(entry ? entry->user + u'/' + entry->password : u"nothing"_s);
            });
    }
    /// Whether the terminal comes to show exactly this.
    [[nodiscard]] bool shows(const QByteArray &text)
    {
        return FakeServer::waitUntil([this, text] { return terminal.shown == text; });
    }
    [[nodiscard]] bool answered(const QStringList &expected)
    {
        const bool came =
            FakeServer::waitUntil([this, expected] { return answers.size() == expected.size(); });
        return came && answers == expected;
    }

    PseudoTerminal terminal;
    Output output;
    std::unique_ptr<TerminalLogin> login = std::make_unique<TerminalLogin>(output, terminal.path);
    bool stands = true;
    QStringList answers;
    LoginBox box{u"smtp.example.org:587"_s, {}, {}, false};
    LoginBox boxOfMe{u"smtp.example.org:587"_s, u"me"_s, {}, false};
};

} // namespace

void TestTerminalLogin::userAndPasswordAreAskedFor()
{
    Rig rig;
    QVERIFY(rig.login->canAsk());
    rig.ask(rig.box);
    QVERIFY(rig.shows("User name at smtp.example.org:587: "));
    rig.terminal.type("me@example.org\n");
    QVERIFY(rig.shows("User name at smtp.example.org:587: me@example.org\r\n"
                      "Password of me@example.org at smtp.example.org:587: "));
    rig.terminal.type("se cret\n");
    QVERIFY(rig.answered({u"me@example.org/se cret"_s}));
    QVERIFY(rig.terminal.isAsBefore());
}

void TestTerminalLogin::knownUserIsNotAskedFor()
{
    Rig rig;
    rig.ask(rig.boxOfMe);
    QVERIFY(rig.shows("Password of me at smtp.example.org:587: "));
    rig.terminal.type("secret\n");
    QVERIFY(rig.answered({u"me/secret"_s}));
}

void TestTerminalLogin::passwordIsNotShown()
{
    Rig rig;
    rig.ask(rig.boxOfMe);
    rig.terminal.type("secret\n");
    QVERIFY(rig.answered({u"me/secret"_s}));
    QVERIFY(rig.shows("Password of me at smtp.example.org:587: \r\n"));
}

void TestTerminalLogin::wordsOfTheServerDoNotDriveTheTerminal()
{
    Rig rig;
    rig.ask({u"h\x1b[2J:25"_s, u"m\x1b]0;e"_s, {}, false});
    QVERIFY(rig.shows("Password of m\\x1b]0;e at h\\x1b[2J:25: "));
}

void TestTerminalLogin::cancelIsNothing_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::newRow("Ctrl-C at the user name") << "\x03"_ba;
    QTest::newRow("no user name") << "\n"_ba;
    QTest::newRow("Ctrl-C at the password") << "me\nsec\x03"_ba;
    QTest::newRow("no password") << "me\n\n"_ba;
}

void TestTerminalLogin::cancelIsNothing()
{
    QFETCH(const QByteArray, keys);
    Rig rig;
    rig.ask(rig.box);
    rig.terminal.type(keys);
    QVERIFY(rig.answered({u"nothing"_s}));
    QVERIFY(rig.terminal.isAsBefore());
}

void TestTerminalLogin::answerThatNobodyWaitsForIsNotGiven()
{
    Rig rig;
    rig.ask(rig.boxOfMe);
    rig.stands = false;
    rig.terminal.type("secret\n");
    QVERIFY(rig.shows("Password of me at smtp.example.org:587: \r\n"));
    FakeServer::settle();
    QVERIFY(rig.terminal.isAsBefore());
    QVERIFY(rig.answers.isEmpty());
}

void TestTerminalLogin::staleQuestionIsWithdrawn()
{
    Rig rig;
    rig.ask(rig.boxOfMe);
    rig.login->closeStale();
    QVERIFY(!rig.terminal.echoes());
    rig.stands = false;
    rig.login->closeStale();
    QVERIFY(rig.terminal.isAsBefore());
    FakeServer::settle();
    QVERIFY(rig.answers.isEmpty());
}

void TestTerminalLogin::staleQuestionMakesRoomForTheNext()
{
    Rig rig;
    bool firstStands = true;
    rig.login->askLogin(
        rig.box, [&firstStands] { return firstStands; },
        [&rig](const std::optional<LoginEntry> &) { rig.answers.append(u"the first"_s); });
    rig.ask(rig.boxOfMe);
    rig.terminal.type("half a na");
    FakeServer::settle();
    firstStands = false;
    rig.login->closeStale();
    rig.terminal.type("\x15secret\n");
    QVERIFY(rig.answered({u"me/secret"_s}));
}

void TestTerminalLogin::secondQuestionWaitsForTheFirst()
{
    Rig rig;
    rig.ask(rig.boxOfMe);
    rig.ask({u"other:25"_s, u"you"_s, {}, false});
    QVERIFY(rig.shows("Password of me at smtp.example.org:587: "));
    rig.terminal.type("1\n");
    QVERIFY(rig.answered({u"me/1"_s}));
    QVERIFY(rig.shows("Password of me at smtp.example.org:587: \r\nPassword of you at other:25: "));
    rig.terminal.type("2\n");
    QVERIFY(rig.answered({u"me/1"_s, u"you/2"_s}));
    QVERIFY(rig.terminal.isAsBefore());
}

void TestTerminalLogin::withoutATerminalTheAnswerIsNothing()
{
    Rig rig;
    rig.login = std::make_unique<TerminalLogin>(rig.output, u"/nowhere/tty"_s);
    QVERIFY(!rig.login->canAsk());
    rig.ask(rig.box);
    QVERIFY(rig.answers.isEmpty());
    QVERIFY(rig.answered({u"nothing"_s}));
}

void TestTerminalLogin::terminalIsGivenBackWhenItIsGone()
{
    Rig rig;
    rig.ask(rig.boxOfMe);
    QVERIFY(!rig.terminal.echoes());
    rig.login.reset();
    QVERIFY(rig.terminal.isAsBefore());
}
