#include "TestSleepInhibitor.h"

#include "FakeServices.h"
#include "support/WorkspaceRig.h"
#include "ui/SleepInhibitor.h"

using namespace Qt::StringLiterals;

namespace {

struct SleepRig : WorkspaceRig
{
    SleepRig() { fillForm(3); }

    SleepInhibitor inhibitor{w.form};
};

} // namespace

void TestSleepInhibitor::aRunKeepsTheComputerAwake()
{
    FakeLoginManager manager;
    SleepRig rig;
    rig.start();
    QTRY_COMPARE(manager.asked.size(), std::size_t{1});
    QCOMPARE(manager.asked[0].arguments,
             (QStringList{u"sleep"_s, u"Sorvanta"_s, u"A mailing is being sent."_s, u"block"_s}));
    rig.Timer.tick();
    rig.smtp.raiseReady();
    QCOMPARE(rig.w.form.runState(), RunState::Sending);
    // One lock for the whole run.
    QVERIFY(FakeLoginManager::hasAnsweredAll());
    QCOMPARE(manager.asked.size(), std::size_t{1});
    QVERIFY(!manager.asked[0].lock->isGivenUp());
    rig.w.engine.StopSending();
}

void TestSleepInhibitor::aPausedRunLetsItSleep()
{
    FakeLoginManager manager;
    SleepRig rig;
    rig.startSending();
    QTRY_COMPARE(manager.asked.size(), std::size_t{1});
    rig.w.engine.cmdPausa_Click();
    rig.finishMessage();
    QCOMPARE(rig.w.form.runState(), RunState::Paused);
    QTRY_VERIFY(manager.asked[0].lock->isGivenUp());
    rig.w.engine.cmdPausa_Click();
    QTRY_COMPARE(manager.asked.size(), std::size_t{2});
    QVERIFY(!manager.asked[1].lock->isGivenUp());
    rig.w.engine.StopSending();
}

void TestSleepInhibitor::aRunThatIsOverLetsItSleep()
{
    FakeLoginManager manager;
    SleepRig rig;
    rig.startSending();
    QTRY_COMPARE(manager.asked.size(), std::size_t{1});
    while (rig.smtp.messageInFlight())
        rig.finishMessage();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QTRY_VERIFY(manager.asked[0].lock->isGivenUp());
    static_cast<void>(rig.prompts.takeNotices());
}

void TestSleepInhibitor::anAnswerThatComesTooLateHoldsNothing()
{
    FakeLoginManager manager;
    SleepRig rig;
    rig.start();
    rig.w.engine.StopSending();
    QTRY_COMPARE(manager.asked.size(), std::size_t{1});
    QTRY_VERIFY(manager.asked[0].lock->isGivenUp());
}

void TestSleepInhibitor::withoutTheServiceNothingHappens()
{
    SleepRig rig;
    rig.startSending();
    QVERIFY(FakeLoginManager::hasAnsweredAll());
    rig.w.engine.StopSending();
    // Whoever comes later is not asked for the run that is over.
    const FakeLoginManager manager;
    QVERIFY(FakeLoginManager::hasAnsweredAll());
    QVERIFY(manager.asked.empty());
}
