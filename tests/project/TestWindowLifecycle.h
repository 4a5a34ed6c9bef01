#pragma once

#include <QObject>

class TestWindowLifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadingShowsTheUnnamedProjectAndTheSettings();
    void quotedCommandLinePathWithSpacesIsLoaded();
    void twoQuotedPathsAreOnePathThatFailsToLoad();
    void relativeCommandLinePathIsMadeAbsolute();
    void projectFromTheCommandLineIsNotModified();
    void pausedProjectFromTheCommandLineStaysPaused();
    void stoppedProjectFromTheCommandLineIsIdle();
    void closingAnUnmodifiedProjectAsksNothing();
    void cancelKeepsTheWindowAndTheEdits();
    void noStillSavesTheSettings();
    void yesSavesThenCloses();
    void abandonedSaveClosesAllTheSame();
    void failedSaveKeepsTheWindow();
    void endOfTheSessionAsksNothingAndSavesTheSettings();
    void endOfTheSessionFinishesAWaitingSave();
    void closeWaitsForAWaitingSave();
    void exitAsksNothingAndSavesNoSettings();
    void whatElseIsKeptIsKeptBeforeTheEnd();
};
