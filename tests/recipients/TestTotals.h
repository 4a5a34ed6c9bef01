#pragma once

#include <QObject>

/// How many rows are in each state, and how that is said.
class TestTotals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowCountsOnce();
    void onlyCheckedRowsAreMeantByARun();
    void whomARunHasComeToIsMeantWhateverTheCheckMark();
    void refusedForNowIsSaidByTheReply();
    void whatIsInFlightIsNotInDoubtYet();
    void theTotalsInWords_data();
    void theTotalsInWords();
};
