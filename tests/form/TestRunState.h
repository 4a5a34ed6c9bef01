#pragma once

#include <QObject>

/// The states of a run, and which control can be used in which.
class TestRunState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlsThatCanBeUsed_data();
    void controlsThatCanBeUsed();
    void startAndEndUndoEachOther();
    void pauseGivesBackTheProjectCommandsAndTheAccountAlone();
    void timersOfEachState_data();
    void timersOfEachState();
    void pauseWords();
    void pauseWordDoesNotFollowTheCatalogue();
    void namesForTraces();
};
