#pragma once

#include <QTest>

#include <random>

/// Rows of test data with so many seeds of chance, to be fetched as "seed"; or with the one that
/// SORVANTA_SEED in the environment gives. Each is in the name of its row, so that it can be given.
inline void addSeedRows(int count)
{
    QTest::addColumn<quint32>("seed");
    bool isGiven = false;
    const quint32 given = qEnvironmentVariable("SORVANTA_SEED").toUInt(&isGiven);
    std::random_device device;
    for (int i = 0; i < (isGiven ? 1 : count); ++i) {
        const quint32 seed = isGiven ? given : device();
        QTest::addRow("SORVANTA_SEED=%u", seed) << seed;
    }
}
