#pragma once

#include <QObject>

/// The report of a run, as files that other programs read.
class TestReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headSaysWhatItIsAbout();
    void projectWithoutANameIsSaidSo();
    void totalsAddUpToTheRows();
    void everybodyIsAccountedForOrNot_data();
    void everybodyIsAccountedForOrNot();
    void uncheckedRowsNeedNotBeAccountedForUnlessTheyAreInDoubt();
    void rowTellsEverything();
    void rowWithoutAnAttemptTellsNothingOfIt();
    void outcomes_data();
    void outcomes();
    void outcomeOfARowThatWasReadFromAFileIsItsState_data();
    void outcomeOfARowThatWasReadFromAFileIsItsState();
    void lastOutcomeStaysWhenTheStateIsOfALaterRun();
    void timesHaveTheOffsetOfTheReport();
    void localTimesAreToldWithTheirOffset();
    void awkwardTextsAreReadBack();
    void nothingIsTakenForAFormula_data();
    void nothingIsTakenForAFormula();
    void csvBeginsWithAByteOrderMarkAndEndsLinesWithCrLf();
    void jsonSaysTheSameToPrograms();
    void jsonIsTheSameInEveryLanguage();
    void endingOfTheNameDecidesOnTheForm_data();
    void endingOfTheNameDecidesOnTheForm();
    void fileThatCannotBeWrittenIsSaid();
    void fullDiskKeepsTheReportBefore_data();
    void fullDiskKeepsTheReportBefore();
};
