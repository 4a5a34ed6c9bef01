#pragma once

#include <QObject>

class TestPacing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDelayOfZeroStartsTheNextPacketOneSecondLater();
    void aDelayOfTwoMinutesIsCountedDown();
    void elapsedTimeIsShownEachSecond();
    void elapsedTextThatIsNoNumberShowsNoTime();
    void theEstimateWaitsForTheFirstDuration();
    void theEstimateIsLeftAloneDuringATransfer();
    void aPacketSizeOfZeroShowsNoRemainingTime();
    void aPauseInsideAPacketResumesOneTickLater();
    void aPauseInsideAWaitKeepsTheWait();
    void aPauseLetsTheMessageInFlightFinish();
    void aPausedRunStopsItsTimersAndFreesTheFileCommands();
    void theLastMessageOfARunPausedMeanwhileEndsTheRun();
    void resumingCountsTheRowsThatAreLeft();
    void pauseAndResumeAreLogged();
    void resumeRefusesInvalidPacketNumbers_data();
    void resumeRefusesInvalidPacketNumbers();
    void cancellingTheStopQuestionLeavesTheCountdownAsItWas();
    void stoppingEndsTheRunAndMarksTheProject();
    void stoppingRemovesExactlyTheControlRow();
    void aStoppedRunKeepsTheShownElapsedTime();
    void stoppingEmptiesTheWorkingFolder();
    void aRunShowsThatItWaitsForALogin();
    void aPausedRunShowsItsPauseWhileALoginIsAwaited();
    void aStoppedRunLeavesTheLabelAloneWhenItsLoginComes();
    void anEnteredPauseIsResumedWithinASecond();
    void aTimerThatFailsEndsTheRun();
};
