#include "TestModel.h"

#include "RunModel.h"
#include "support/Seeds.h"

#include <QTest>

void TestModel::randomOrdersMailNobodyTwice_data()
{
    constexpr int Seeds = 5;
    addSeedRows(Seeds);
}

void TestModel::randomOrdersMailNobodyTwice()
{
    QFETCH(quint32, seed);
    constexpr int Steps = 20'000;
    constexpr int StepsToDrain = 100;
    RunModel model(seed);
    for (int step = 1; step <= Steps && model.failure().isEmpty(); ++step) {
        model.step();
        if (step % StepsToDrain == 0)
            model.drain();
    }
    QVERIFY2(model.failure().isEmpty(), qPrintable(model.failure()));
    const RunModel::Counts &met = model.counts();
    qInfo("%d steps, %d messages, %d runs ended, %d resumed from a file, %d saved in flight, "
          "%d stale results, %d disk failures",
          Steps, met.messages, met.runsEnded, met.resumedFromFile, met.savesInFlight,
          met.staleResults, met.diskFailures);
    qInfo("died idle %d, waiting %d, sending %d, paused %d times, with a message in flight %d; "
          "continued %d, opened as it is %d, forgotten %d, not answered %d; %d in doubt, %d "
          "continued to the end",
          met.deaths[RunState::Idle], met.deaths[RunState::Waiting], met.deaths[RunState::Sending],
          met.deaths[RunState::Paused], met.deathsInFlight, met.recoveries[Answer::Continue],
          met.recoveries[Answer::OpenAsItIs], met.recoveries[Answer::Forget],
          met.recoveries[Answer::Cancel], met.inDoubt, met.continuedToEnd);
    // The orders must have met what they are made for.
    QVERIFY(met.messages > 250);
    QVERIFY(met.runsEnded > 10);
    QVERIFY(met.resumedFromFile > 0);
    QVERIFY(met.savesInFlight > 0);
    QVERIFY(met.staleResults > 0);
    QVERIFY(met.diskFailures > 0);
    for (const RunState state :
         {RunState::Idle, RunState::Waiting, RunState::Sending, RunState::Paused})
        QVERIFY(met.deaths[state] > 0);
    QVERIFY(met.deathsInFlight > 0);
    for (const Answer answer :
         {Answer::Continue, Answer::OpenAsItIs, Answer::Forget, Answer::Cancel})
        QVERIFY(met.recoveries[answer] > 0);
    QVERIFY(met.inDoubt > 0);
    QVERIFY(met.continuedToEnd > 0);
}
