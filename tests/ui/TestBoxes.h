#pragma once

#include "WindowTest.h"

#include <QTemporaryDir>

/// Every box of the program, in both languages, over the real window.
class TestBoxes : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    // What they say.
    void everyMessageBoxHasItsLookAndWords_data();
    void everyMessageBoxHasItsLookAndWords();
    void aNewRecipientIsAskedForUntilTheAddressIsValid_data();
    void aNewRecipientIsAskedForUntilTheAddressIsValid();
    void everyFileDialogHasItsTitle_data();
    void everyFileDialogHasItsTitle();
    void aLongListOfRejectedRecipientsScrolls();

    // What becomes of an answer.
    void closingInARunDoesWhatTheAnswerSays_data();
    void closingInARunDoesWhatTheAnswerSays();
    void aFailedSaveLosesNothingAndTheWindowStays();
    void startPressedTwiceStartsOneRun_data();
    void startPressedTwiceStartsOneRun();
    void aMessageFileThatVanishesEndsTheStart_data();
    void aMessageFileThatVanishesEndsTheStart();
    void aBadProjectOnTheCommandLineLeavesAnEmptyOne_data();
    void aBadProjectOnTheCommandLineLeavesAnEmptyOne();

    // What happens behind an open box.
    void theRunGoesOnBehindTheStopQuestion();
    void anErrorClosesTheStopQuestion();
    void okToStopAfterTheErrorDoesNothing();
    void anErrorLeavesTheSaveDialogOpen();
    void anErrorShowsAboveTheAboutBox();

private:
    QTemporaryDir m_settings;
};
