#pragma once

#include <QObject>

/// The lines of a book file.
class TestBookText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFieldsStandInTheOrderOfTheFile();
    void aNameAndAnAddressWithAFinalSemicolonLeaveTheNameEmpty();
    void aNameAndAnAddressAloneAreAlsoTheName();
    void notesOfTwoLinesStandOnOneLineAndComeBack();
    void lineEndsInTheFirstTwoFieldsStayAsTheyAreWritten();
    void halfALineEndDoesNotTearTheLine_data();
    void halfALineEndDoesNotTearTheLine();
    void notesHoldingASemicolonSurvive();
    void aCompanyHoldingASemicolonMovesWhatFollows();
    void aFullLineOfEmptyFieldsIsAnEmptyContact();
    void theAddressEndsAtItsComment();
    void aNumberSignElsewhereStays();
    void aFullLineWithoutItsLastSemicolonLosesTheEndOfTheNotes();
    void aLineWithoutSemicolonEndsTheReading_data();
    void aLineWithoutSemicolonEndsTheReading();
    void fiftyFieldsAreThirteen();
    void aLineOfAMegabyteIsRead();
    void anEmptyTextIsAnEmptyBook();
    void linesEndInAnyWay_data();
    void linesEndInAnyWay();
    void theSecondSaveWritesTheSameText_data();
    void theSecondSaveWritesTheSameText();
    void whateverIsReadIsWrittenTheSameFromTheSecondSaveOn();
};
