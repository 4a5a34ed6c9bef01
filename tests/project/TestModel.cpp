#include "TestModel.h"

#include "RunModel.h"

#include <QTest>

void TestModel::randomOrdersMailNobodyTwice_data()
{
    QTest::addColumn<quint32>("seed");
    bool isGiven = false;
    const quint32 given = qEnvironmentVariable("SORVANTA_SEED").toUInt(&isGiven);
    constexpr int Seeds = 10;
    std::random_device device;
    for (int i = 0; i < (isGiven ? 1 : Seeds); ++i) {
        const quint32 seed = isGiven ? given : device();
        QTest::addRow("SORVANTA_SEED=%u", seed) << seed;
    }
}

void TestModel::randomOrdersMailNobodyTwice()
{
    QFETCH(quint32, seed);
    constexpr int Steps = 12'000;
    constexpr int StepsToDrain = 400;
    RunModel model(seed);
    for (int step = 1; step <= Steps && model.failure().isEmpty(); ++step) {
        model.step();
        if (step % StepsToDrain == 0)
            model.drain();
    }
    QVERIFY2(model.failure().isEmpty(), qPrintable(model.failure()));
    qInfo("%d steps, %d messages, %d runs ended, %d resumed from a file, %d saved in flight, "
          "%d stale results",
          Steps, model.messages(), model.runsEnded(), model.resumedFromFile(),
          model.savesInFlight(), model.staleResults());
    // The orders must have met what they are made for.
    QVERIFY(model.messages() > 250);
    QVERIFY(model.runsEnded() > 10);
    QVERIFY(model.resumedFromFile() > 0);
    QVERIFY(model.savesInFlight() > 0);
    QVERIFY(model.staleResults() > 0);
}
