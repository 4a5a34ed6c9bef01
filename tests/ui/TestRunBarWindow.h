#pragma once

#include "WindowTest.h"

/// The bar under the recipient list, in the window.
class TestRunBarWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshWindowHasNoBarAndNoRoomForOne();
    void itStandsUnderTheListWithItsButtons_data();
    void itStandsUnderTheListWithItsButtons();
    void itSaysWhatTheRunReached_data();
    void itSaysWhatTheRunReached();
    void itGoesWhileARunIsShownAndComesBack();
    void uncheckingThoseSentLeavesTheRest();
    void theRestIsSelectedAndBroughtIntoSight();
    void onlyTheRefusedAreChecked();
    void theReportIsAskedFor();
    void itIsReachedByKeyboardAndLeavesTheKeysInTheList();
    void itNamesWhatUncheckingMeansForThoseInDoubt_data();
    void itNamesWhatUncheckingMeansForThoseInDoubt();
};
