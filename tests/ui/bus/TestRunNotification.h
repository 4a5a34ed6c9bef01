#pragma once

#include "../WindowTest.h"

/// The desktop is told what became of a run that nobody looks at.
class TestRunNotification : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void theEndOfARunIsSaid_data();
    void theEndOfARunIsSaid();
    void aRunThatBrokeOffIsSaidWithItsReason();
    void nothingIsSaidToWhoLooks();
    void theNextReplacesTheLast();
    void aClickBringsTheWindowToTheFront();
};
