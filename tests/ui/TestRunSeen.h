#pragma once

#include "WindowTest.h"

class TestRunSeen : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void aPressAfterARunIsNoticed_data();
    void aPressAfterARunIsNoticed();
    void aPressInAnotherWindowIsNoticedToo();
    void itIsNoticedOnceForEachEnd();
    void noPressIsNoticedBeforeTheEnd();
    void activationAndMovementSayNothing();
    void aKeyHeldDownSaysNothing();
    void thePressDoesWhatItAlwaysDoes();
};
