#include "TestTerminalLine.h"

#include "base/TerminalLine.h"
#include "support/FakeServer.h"
#include "support/PseudoTerminal.h"

#include <QSignalSpy>
#include <QStringList>
#include <QTemporaryFile>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Rig
{
    Rig()
    {
        QObject::connect(line.get(), &TerminalLine::entered, line.get(),
                         [this](const QString &text) { outcomes.append(u"entered "_s + text); });
        QObject::connect(line.get(), &TerminalLine::cancelled, line.get(),
                         [this] { outcomes.append(u"cancelled"_s); });
    }
    /// Whether the terminal comes to show exactly this.
    [[nodiscard]] bool shows(const QByteArray &text)
    {
        return FakeServer::waitUntil([this, text] { return terminal.shown == text; });
    }
    [[nodiscard]] bool hasOutcome(const QString &outcome)
    {
        const bool came = FakeServer::waitUntil([this] { return !outcomes.isEmpty(); });
        return came && std::exchange(outcomes, {}) == QStringList(outcome);
    }

    PseudoTerminal terminal;
    std::unique_ptr<TerminalLine> line = std::make_unique<TerminalLine>(terminal.path);
    QStringList outcomes;
};

} // namespace

void TestTerminalLine::lineIsShownWhileItIsTyped()
{
    Rig rig;
    QVERIFY(rig.line->canAsk());
    rig.line->ask(u"Name: "_s, TerminalLine::Echo::Shown);
    QVERIFY(rig.shows("Name: "));
    rig.terminal.type("m\xc3\xbc\r");
    QVERIFY(rig.hasOutcome(u"entered mü"_s));
    QVERIFY(rig.shows("Name: m\xc3\xbc\r\n"));
    QVERIFY(rig.terminal.isAsBefore());
}

void TestTerminalLine::hiddenLineIsNotShown()
{
    Rig rig;
    rig.line->ask(u"Password: "_s, TerminalLine::Echo::Hidden);
    QVERIFY(!rig.terminal.echoes());
    rig.terminal.type(" se cret \n");
    QVERIFY(rig.hasOutcome(u"entered  se cret "_s));
    QVERIFY(rig.shows("Password: \r\n"));
    QVERIFY(rig.terminal.isAsBefore());
    QVERIFY(rig.terminal.echoes());
}

void TestTerminalLine::terminalEditsTheLine()
{
    Rig rig;
    rig.line->ask(u"? "_s, TerminalLine::Echo::Hidden);
    rig.terminal.type("wrong\x15rihg\x7f\x7fght\n");
    QVERIFY(rig.hasOutcome(u"entered right"_s));
}

void TestTerminalLine::keysThatCancel_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::newRow("Ctrl-C") << "\x03"_ba;
    QTest::newRow("Ctrl-C in a line") << "abc\x03"_ba;
    QTest::newRow("Ctrl-backslash") << "abc\x1c"_ba;
    QTest::newRow("Ctrl-D") << "\x04"_ba;
    QTest::newRow("Ctrl-D twice in a line") << "abc\x04\x04"_ba;
}

void TestTerminalLine::keysThatCancel()
{
    QFETCH(const QByteArray, keys);
    for (const auto echo : {TerminalLine::Echo::Shown, TerminalLine::Echo::Hidden}) {
        Rig rig;
        rig.line->ask(u"? "_s, echo);
        rig.terminal.type(keys);
        QVERIFY(rig.hasOutcome(u"cancelled"_s));
        QVERIFY(rig.terminal.isAsBefore());
        QVERIFY(FakeServer::waitUntil([&rig] { return rig.terminal.shown.endsWith("\r\n"); }));
    }
}

void TestTerminalLine::controlKeysRaiseNoSignalMeanwhile()
{
    Rig rig;
    QVERIFY(rig.terminal.raisesSignals());
    rig.line->ask(u"? "_s, TerminalLine::Echo::Shown);
    QVERIFY(!rig.terminal.raisesSignals());
    rig.line->withdraw();
    QVERIFY(rig.terminal.raisesSignals());
}

void TestTerminalLine::withdrawnQuestionSaysNothingAndGivesTheTerminalBack()
{
    Rig rig;
    rig.line->ask(u"? "_s, TerminalLine::Echo::Hidden);
    rig.terminal.type("abc");
    FakeServer::settle();
    rig.line->withdraw();
    QVERIFY(rig.terminal.isAsBefore());
    QVERIFY(rig.shows("? \r\n"));
    QVERIFY(rig.outcomes.isEmpty());
    rig.line->withdraw();
    FakeServer::settle();
    QCOMPARE(rig.terminal.shown, "? \r\n"_ba);
}

void TestTerminalLine::objectThatIsGoneGivesTheTerminalBack()
{
    Rig rig;
    rig.line->ask(u"? "_s, TerminalLine::Echo::Hidden);
    rig.line.reset();
    QVERIFY(rig.terminal.isAsBefore());
}

void TestTerminalLine::closedTerminalCancels()
{
    Rig rig;
    rig.line->ask(u"? "_s, TerminalLine::Echo::Hidden);
    rig.terminal.type("abc");
    FakeServer::settle();
    rig.terminal.hangUp();
    QVERIFY(rig.hasOutcome(u"cancelled"_s));
    QVERIFY(!rig.line->canAsk());
}

void TestTerminalLine::linesAreAskedForOneAfterTheOther()
{
    Rig rig;
    QObject::connect(rig.line.get(), &TerminalLine::entered, rig.line.get(),
                     [&rig](const QString &text) {
                         if (text == u"me"_s)
                             rig.line->ask(u"2? "_s, TerminalLine::Echo::Hidden);
                     });
    rig.line->ask(u"1? "_s, TerminalLine::Echo::Shown);
    rig.terminal.type("me\nsecret\n");
    QVERIFY(FakeServer::waitUntil([&rig] { return rig.outcomes.size() == 2; }));
    QCOMPARE(rig.outcomes, QStringList({u"entered me"_s, u"entered secret"_s}));
    QVERIFY(rig.terminal.isAsBefore());
}

void TestTerminalLine::whatIsNoTerminalCannotBeAskedOn_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << u"/nowhere/tty"_s;
    QTest::newRow("no terminal") << u"/dev/null"_s;
}

void TestTerminalLine::whatIsNoTerminalCannotBeAskedOn()
{
    QFETCH(const QString, path);
    TerminalLine line(path);
    QVERIFY(!line.canAsk());
    const QSignalSpy cancelled(&line, &TerminalLine::cancelled);
    line.ask(u"? "_s, TerminalLine::Echo::Shown);
    QCOMPARE(cancelled.size(), 0);
    FakeServer::settle();
    QCOMPARE(cancelled.size(), 1);
}
