#pragma once

#include "WindowTest.h"

/// The box for the login to a server.
class TestLoginBox : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    // What it says.
    void itSpeaksTheLanguageOfTheWindow_data();
    void itSpeaksTheLanguageOfTheWindow();
    void itSaysWhyItAsksAgain();
    void aRefusalIsShownPlainAndFits_data();
    void aRefusalIsShownPlainAndFits();
    void rememberingIsOfferedWhereThereIsAKeyring_data();
    void rememberingIsOfferedWhereThereIsAKeyring();

    // What is typed.
    void theFirstFieldToFillHasTheFocus_data();
    void theFirstFieldToFillHasTheFocus();
    void okNeedsAUserAndAPassword();
    void tabFollowsTheReadingOrder();
    void whatWasEnteredIsTheAnswer();
    void linesPastedIntoTheUserBecomeOne();
    void thePasswordIsHiddenAndLeavesTheBox();
    void leavingTheBoxIsCancel_data();
    void leavingTheBoxIsCancel();

    // The run that waits for it.
    void theAnswerIsPosted();
    void theRunCanBePausedWhileItIsOpen();
    void itClosesWhenTheRunIsStopped();
    void aStaleBoxNeverOpens();
    void itWaitsForTheNoticesBeforeIt();
};
