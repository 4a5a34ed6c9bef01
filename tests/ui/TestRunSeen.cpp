#include "TestRunSeen.h"

#include "WindowRig.h"
#include "ui/RunSeen.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A shown window, and how often the end of a run was seen.
struct SeenRig : WindowRig
{
    SeenRig()
    {
        show();
        core->fillForm(2);
    }

    /// A run that reaches everybody.
    void run()
    {
        core->startSending();
        while (core->smtp.messageInFlight())
            core->finishMessage();
        QCOMPARE(core->prompts.takeNoticeTexts(), QStringList{u"Sending ended."_s});
        QCOMPARE(core->w.form.runState(), RunState::Idle);
    }
    QLineEdit &subject() { return get<QLineEdit>("txtOggetto"); }

    int seen = 0;
    RunSeen watcher{core->w.form, [this] { ++seen; }};
};

} // namespace

void TestRunSeen::aPressAfterARunIsNoticed_data()
{
    using Press = std::function<void(SeenRig &)>;
    QTest::addColumn<Press>("press");
    const auto row = [](const char *name, const Press &press) { QTest::newRow(name) << press; };
    row("key", [](SeenRig &rig) { QTest::keyClick(&rig.subject(), Qt::Key_A); });
    row("key for the window",
        [](SeenRig &rig) { QTest::keyClick(rig.window->windowHandle(), Qt::Key_Shift); });
    // The preview's, which no window gets as a key.
    row("key of a command",
        [](SeenRig &rig) { QTest::keyClick(rig.window->windowHandle(), Qt::Key_F5); });
    row("left button", [](SeenRig &rig) { QTest::mouseClick(&rig.subject(), Qt::LeftButton); });
    row("right button", [](SeenRig &rig) {
        QTest::mouseClick(&rig.get<QPushButton>("cmdAvvio"), Qt::RightButton);
    });
}

void TestRunSeen::aPressAfterARunIsNoticed()
{
    QFETCH(std::function<void(SeenRig &)>, press);
    SeenRig rig;
    rig.run();
    rig.core->w.form.setProjectModified(false);
    QCOMPARE(rig.seen, 0);
    press(rig);
    QCOMPARE(rig.seen, 1);
}

void TestRunSeen::aPressInAnotherWindowIsNoticedToo()
{
    SeenRig rig;
    QDialog other(rig.window.get());
    other.show();
    rig.run();
    QTest::mouseClick(&other, Qt::LeftButton);
    QCOMPARE(rig.seen, 1);
}

void TestRunSeen::itIsNoticedOnceForEachEnd()
{
    SeenRig rig;
    for (int runs = 1; runs <= 2; ++runs) {
        rig.core->w.form.setProjectModified(false);
        rig.run();
        QTest::keyClicks(&rig.subject(), u"abc"_s);
        QTest::mouseClick(&rig.subject(), Qt::LeftButton);
        QCOMPARE(rig.seen, runs);
    }
}

void TestRunSeen::noPressIsNoticedBeforeTheEnd()
{
    SeenRig rig;
    QTest::keyClick(&rig.subject(), Qt::Key_A);
    rig.core->w.form.setProjectModified(false);
    rig.core->startSending();
    QTest::mouseClick(&rig.get<QPushButton>("cmdPausa"), Qt::LeftButton);
    QCOMPARE(rig.core->w.form.runState(), RunState::Paused);
    QTest::mouseClick(&rig.get<QPushButton>("cmdPausa"), Qt::LeftButton);
    QCOMPARE(rig.seen, 0);
    // Another run begins before anybody came.
    rig.core->w.engine.StopSending();
    rig.core->w.engine.cmdAvvio_Click();
    rig.core->prompts.expectAnswer(Topic::SaveBeforeStart, Answer::No);
    rig.core->prompts.answerAll();
    QCOMPARE(rig.core->w.form.runState(), RunState::Waiting);
    QTest::keyClick(&rig.get<QPushButton>("cmdPausa"), Qt::Key_A);
    QCOMPARE(rig.seen, 0);
}

void TestRunSeen::activationAndMovementSayNothing()
{
    SeenRig rig;
    rig.run();
    rig.window->hide();
    rig.window->show();
    rig.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(rig.window.get()));
    QTest::mouseMove(&rig.subject(), {5, 5});
    QTest::mouseMove(&rig.subject(), {9, 9});
    rig.subject().setFocus();
    rig.core->settle();
    QCOMPARE(rig.seen, 0);
}

void TestRunSeen::aKeyHeldDownSaysNothing()
{
    SeenRig rig;
    rig.run();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s, true);
    QCoreApplication::sendEvent(&rig.subject(), &repeated);
    QCOMPARE(rig.seen, 0);
}

void TestRunSeen::thePressDoesWhatItAlwaysDoes()
{
    SeenRig rig;
    rig.run();
    rig.subject().clear();
    QTest::keyClick(&rig.subject(), Qt::Key_A);
    QCOMPARE(rig.subject().text(), u"a"_s);
    QCOMPARE(rig.seen, 1);
}
