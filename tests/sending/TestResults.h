#pragma once

#include <QObject>

class TestResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRefusedMessageDoesNotStopTheRun();
    void aRefusedGroupMarksAndLogsEveryRow();
    void ofAGroupOnlyTheRefusedRowsAreErrors();
    void theCursorStopsAtAnUncheckedLastRow();
    void theCursorPassesUncheckedRowsInBetween();
    void theDurationOfTheMessageIsKept();
    void aTickCounterThatWrapsMeasuresOn();
    void theReplyIsKeptWithTheRow();
    void anErrorWhileConnectingStopsTheRun();
    void aNegativeNumberKeepsItsSign();
    void anErrorInATransferLeavesTheRowInDoubt();
    void aMessageThatWasNeverTakenGoesBackToWaiting();
    void rowsAlreadyRefusedAreErrorsWhenTheSessionFails();
    void theErrorIsLoggedBeforeTheRunStops();
};
