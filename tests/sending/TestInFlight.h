#pragma once

#include <QObject>

/// The rules that keep anyone from being mailed twice, one test each.
class TestInFlight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReadySessionOfNoPresentRunIsOnlyDisconnected();
    void aReadySessionFromBeforeAResumeIsOnlyDisconnected();
    void readyWhileAMessageIsInFlightHandsNothingOver();
    void aResultAfterStopMarksItsRow();
    void aResultAfterANewStartChangesNothingButTheLog();
    void aResultAfterTheProjectWasReplacedChangesNothingButTheLog();
    void aResultFindsItsRowWhereverItMoved();
    void aSecondResultChangesNothing();
    void pauseAndResumeInsideAMessageConnectBehindIt();
    void stopAndStartInsideAMessageConnectBehindIt();
    void anErrorOfAnEndedRunsMessageLetsTheNewRunGoOn();
    void anErrorInTheSameRunDropsTheWaitingConnection();
    void anErrorOfASessionFromBeforeTheRunIsIgnored();
    void aPacketThatEndsBehindTheStopQuestionCountsOn();
    void okAfterTheRunHasEndedDoesNothing();
    void stopSendingRemovesNoRowOfAProjectOpenedMeanwhile();
};
