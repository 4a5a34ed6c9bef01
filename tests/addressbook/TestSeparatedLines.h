#pragma once

#include <QObject>

/// Lines of fields separated by ";", as books, spreadsheets and people write them.
class TestSeparatedLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsStandInTheOrderOfABook();
    void missingFieldsAreEmpty();
    void lineEnds_data();
    void lineEnds();
    void linesWithoutTextArePassedOver();
    void lineWithoutSeparatorIsAName();
    void quotesOfSpreadsheetsAreUndone_data();
    void quotesOfSpreadsheetsAreUndone();
    void quotesOfANameStay_data();
    void quotesOfANameStay();
    void quotedFieldMayHoldSeveralLines();
    void quoteThatIsNeverClosedTakesNoOtherLine();
    void notesTakeTheRestOfTheLine_data();
    void notesTakeTheRestOfTheLine();
};
