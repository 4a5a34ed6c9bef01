#pragma once

#include <QObject>

class TestProjectFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSavedProjectIsLoadedBack();
    void loadingShowsShortenedPathsAndKeepsFullOnes();
    void loadingIsLoggedBeforeTheSizeIsComputed();
    void savingIsLogged();
    void aFailedSaveLeavesTheOldFile();
    void aFullDiskLeavesTheOldFile_data();
    void aFullDiskLeavesTheOldFile();
    void textBeyondTheCodePageIsSavedAsUtf8();
    void textOfTheCodePageIsSavedInIt();
    void aFileThatIsNoProjectIsRefused_data();
    void aFileThatIsNoProjectIsRefused();
    void aFileThatOnlyBeginsAsUtf8IsRefused();
    void aFileCutInsideARecipientLosesItsName();
    void aFileCutAtEveryByteIsNeverWrittenOver();
    void aProjectSavedInAPauseReopensPaused();
    void aPausedProjectGoesOnAtItsRow();
    void thePausedRunsElapsedTimeGoesOn();
    void aPausedProjectWhoseMessageCannotBeReadRefusesToResume();
    void theControlRowOfAPausedProjectIsFoundAgain();
    void aLastRowThatIsNotTheControlAddressStays();
    void aProjectSavedInARunHasNoControlRow();
    void aProjectSavedInAPauseKeepsTheControlRow();
    void loadingResetsTheSortColumn();

    void aSaveInAPauseWaitsForTheMessageInFlight();
    void aSaveInAPauseIsASnapshotOfItsMoment();
    void aSaveDoesNotWaitForAMessageOfAnEarlierRun();
    void aSaveThatWaitsKeepsARefusedMessagesState();
    void aSaveThatWaitsKeepsAMessageInDoubt();
    void aSaveThatWaitsSendsAMessageNeverTakenAgain();
    void aSaveFinishedBeforeItsResultLeavesTheMessageInDoubt();
    void commandsWaitBehindASave();
};
