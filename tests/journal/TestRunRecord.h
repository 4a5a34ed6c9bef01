#pragma once

#include <QObject>

/// The file of a run: written line by line, and read back.
class TestRunRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasWrittenIsReadBack();
    void textsThatAProjectFileCutsComeBackWhole();
    void theProjectInItIsAProjectFile();
    void eachResultBringsItsRowUpToDate();
    void rowsHandedOverWithoutAResultAreInDoubt();
    void aMessageNotTakenIsWhereTheRunGoesOn();
    void uncheckedRowsThatWerePassedOverAreNotSent();
    void triesAreCountedOverPauses();
    void aRecordCutAtAnyByteIsReadToItsLastWholeLine_data();
    void aRecordCutAtAnyByteIsReadToItsLastWholeLine();
    void aBrokenByteNeverMakesARowSentOrWaitingAgain();
    void aResultWithoutItsHandOverMovesTheRunOn();
    void theMessageBehindABrokenEndIsInDoubt();
    void theMessageBehindABrokenEndIsInDoubtAlsoWhenTheRunIsOver();
    void eachBrokenLineAtTheEndMayBeAMessage();
    void aMessageNotTakenTellsThatTheRunHadComeThere();
    void whomTheServerRefusedOfAMessageNotTakenDoesNotMoveTheRunOn();
    void rowsThatWereRefusedBeforeAreInDoubtToo();
    void aMessageWhoseHandOverIsLostWasHandedOver();
    void theControlRowIsNobodyWhoIsCounted();
    void rangesThatRepeatRowsSayNothing();
    void rowsThatNoLineAccountsForAreInDoubt();
    void positionsBeyondTheListChangeNothing();
    void whatIsNoRecordIsNone_data();
    void whatIsNoRecordIsNone();
    void statesAreInTheWindowsLanguage();
    void theProjectOfARunIsReadFromItsHeadAlone();
};
