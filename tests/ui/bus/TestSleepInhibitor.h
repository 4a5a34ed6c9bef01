#pragma once

#include "../WindowTest.h"

/// The computer stays awake while a run goes.
class TestSleepInhibitor : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void aRunKeepsTheComputerAwake();
    void aPausedRunLetsItSleep();
    void aRunThatIsOverLetsItSleep();
    void anAnswerThatComesTooLateHoldsNothing();
    void withoutTheServiceNothingHappens();
};
