#pragma once

#include <QObject>

class TestProjectCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newFollowedBySaveAsksForAName();
    void newStoresTheSettings();
    void newEmptiesWhatBelongsToTheProject();
    void newAsksForAModifiedProjectOnly();
    void cancelAbandonsNew();
    void aSaveThatFailsEndsNew();
    void anAbandonedSaveLetsNewGoOn();
    void cancellingSaveAsKeepsTheName();
    void saveAsAsksBeforeItOverwrites();
    void saveAsThatFailsKeepsTheOldPath();
    void savingDoesNotClearTheModifiedFlag();
    void openAsksWithItsOwnText();
    void theOpenDialogIsTheSystemsOwn();
    void cancellingTheOpenDialogChangesNothing();
    void openingAProjectStopsAPausedRunAfterTheLoad();
    void openingAPausedProjectReplacesAPausedRun();
    void aRefusedFileLeavesThePausedRun();
    void theCaptionNamesTheProject_data();
    void theCaptionNamesTheProject();
    void commandsAreRefusedDuringARun();
};
