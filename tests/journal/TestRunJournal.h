#pragma once

#include <QObject>

/// What is on the disk at each moment of a run.
class TestRunJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startWritesTheProjectAsItStands();
    void aMessageIsRecordedBeforeItIsHandedOver();
    void resultsFollowWithWhatTheServerSaid();
    void rowsOfAGroupWithTheSameReplyShareALine();
    void resumeWritesTheProjectAnew();
    void aMessageInFlightAtResumeIsInDoubtUntilItsResult();
    void aResultThatComesAfterAnotherProjectIsOpenedGoesToItsOwnRun();

    void aRunThatSentNothingLeavesNoRecord();
    void theRecordOfACompleteRunStaysUntilItsRowsWereSeen();
    void theRecordOfAStoppedRunStaysUntilTheProjectIsSaved();
    void theRecordOfAPausedRunGoesWhenTheProjectIsSaved();
    void theRecordStaysWhenAnotherProjectIsOpened();
    void anotherStartReplacesTheRecord();

    void theNextMessageWaitsWhileTheDiskLagsBehind();
    void whoIsPassedOverIsSaidOnceHoweverOftenTheDiskLagsBehind();
    void aRunEndsWhenTheDiskHasCaughtUp();
    void aRunThatWasStoppedMeanwhileDoesNotGoOn();
    void aFullDiskPausesTheRunAndResumeGoesOn();
    void whoWasPassedOverBeforeAFullDiskIsNotSaidAgain_data();
    void whoWasPassedOverBeforeAFullDiskIsNotSaidAgain();
    void whereverTheDiskIsFullEverybodyIsSentToOnce();
    void aDiskThatFailsPausesTheRun();
    void aFolderThatMayNoLongerBeWrittenLetsAPausedRunStand();
    void aFolderThatMayNotBeWrittenLetsNoRunStart();

    void aProjectThatAnotherProcessRunsIsRefused();
    void aPausedProjectThatAnotherProcessRunsIsNotResumedLater();
    void aProjectThatAnotherProgramRanMeanwhileIsNotStarted();
    void aProjectWhoseFileWasChangedMeanwhileIsNeitherStartedNorSaved();
    void uncheckingWhoIsInDoubtDoesNotAccountForHim();
    void aStartThatFailsLeavesTheRecordOfTheRunBefore();
    void aHandOverThatDidNotComeToPassIsNotRecordedLater();
    void aPauseWhileTheDiskLagsEndsTheSessionWhenItIsSaved();
    void theLockOfAProcessThatIsGoneIsTakenOver();
    void aLockWhoseProcessDiedBeforeItSaidSoIsTakenOver();
    void aProjectInAFolderThatMayNotBeWrittenIsLockedElsewhere();
    void aPausedRunKeepsItsLockAndAStoppedOneDoesNot();
    void aStoppedRunKeepsItsLockUntilTheProjectIsSaved();
    void aRunThatSentNothingKeepsWhatIsKnownOfAnEarlierOne();
    void theLockFollowsAProjectSavedUnderAnotherName();
};
