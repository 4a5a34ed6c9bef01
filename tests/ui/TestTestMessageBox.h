#pragma once

#include "WindowTest.h"

/// "Send a test to me" in the menu of Start.
class TestTestMessageBox : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void itGoesToTheSender();
    void itIsTheMessageOfTheCurrentRow_data();
    void itIsTheMessageOfTheCurrentRow();
    void itNeedsTheSendersAddress_data();
    void itNeedsTheSendersAddress();
    void itSaysThatItIsOnItsWay_data();
    void itSaysThatItIsOnItsWay();
    void itBlocksNothing();
    void theResultIsANotice_data();
    void theResultIsANotice();
    void itCanBeStopped_data();
    void itCanBeStopped();
    void itCanBeSentAgain();
};
