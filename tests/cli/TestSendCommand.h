#pragma once

#include <QObject>

/// The command as a process sees it: what it exits with, and what stands in the project afterwards.
class TestSendCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowSentIsSuccess();
    void aRefusedRowIsSaid();
    void aRefusedControlCopyIsSaid();
    void whatStartRefusesIsNotBegun();
    void aFileThatIsNoProjectIsNotBegun();
    void aFileCutInsideARecipientIsNotBegun();
    void linkedPicturesThatWillNotTravelNeedYes();
    void aRunWithoutSaveLeavesTheProject();
    void saveWritesTheStatesBack();
    void aProjectWithSentRowsNeedsAWord_data();
    void aProjectWithSentRowsNeedsAWord();
    void againSendsToEverybody();
    void restWithNothingLeftSendsNothing();
    void aSessionThatFailsIsSaidAndWrittenBack();
    void aSessionThatFailsBeforeAnyMessageLeavesTheProject_data();
    void aSessionThatFailsBeforeAnyMessageLeavesTheProject();
    void ctrlCBeforeTheFirstPacketSavesThePause();
    void ctrlCInsideAMessageWaitsForIt();
    void ctrlCInTheLastMessageEndsTheRun();
    void aSecondCtrlCEndsAtOnceWithTheMessageInDoubt();
    void aPausedProjectGoesOnAndIsWrittenBack();
    void aFailureAfterCtrlCKeepsThePause();
    void whoIsInDoubtAfterARunThatWentOnIsNamed();
    void aRowThatARunWentPastIsNotSaidToBeSent();
    void aFailedSessionSaysWhoIsLeft();
    void aPauseThatCannotBeSavedIsAFailure();
    void theSummaryForProgramsHasThoseInDoubt();
    void theNumbersOfARunThatWentOnAddUp();
    void theControlCopyIsNotAmongTheNumbers_data();
    void theControlCopyIsNotAmongTheNumbers();
    void againDoesNotGoWithAProjectThatWasSavedPaused_data();
    void againDoesNotGoWithAProjectThatWasSavedPaused();
    void continueNeedsARunThatStandsStill();
    void continueGoesOnWithAPausedProject();
    void theReportIsWrittenWhenTheRunIsOver();
    void theReportIsWrittenWhenTheSessionFails();
    void theReportOfAPauseHasTheControlCopy();
    void theReportIsWrittenWhenTheSecondCtrlCEndsAtOnce();
    void aReportThatCannotBeWrittenIsSaid();
    void aReportThatCannotBeWrittenDoesNotHideThePause();
    void aRunThatIsNotBegunHasNoReport();
    void aRunThatWasSummedUpLeavesNothingBehind();
    void aRunLeftBehindNeedsAWord();
    void continueGoesOnWhereALeftRunStood();
    void restAfterALeftRunReachesThoseWithout();
    void restAfterALeftRunThatReachedAllIsWrittenBack();
    void againForgetsALeftRun();
    void continueWritesBackALeftRunThatReachedAll();
    void aStartThatIsRefusedKeepsTheLeftRun();
    void aRunThatCannotBeRecordedIsSavedPaused();
    void aRunThatCanNeitherBeRecordedNorSavedIsKept();
    void aRunWhoseResultCannotBeSavedIsKept();
    void aLeftRunThatCannotBeWrittenBackIsKept_data();
    void aLeftRunThatCannotBeWrittenBackIsKept();
};
