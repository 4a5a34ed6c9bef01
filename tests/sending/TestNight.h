#pragma once

#include <QObject>

/// A run of a whole night, second by second on a clock that is handed in, which somebody pauses and
/// resumes now and then. SORVANTA_SEED in the environment repeats a night.
class TestNight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tenThousandInPacketsOfFiftyKeepThePace_data();
    void tenThousandInPacketsOfFiftyKeepThePace();
};
