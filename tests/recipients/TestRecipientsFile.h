#pragma once

#include <QObject>

/// The import of a recipients file.
class TestRecipientsFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lineGivesACheckedRowWaiting();
    void addressBeforeACommentKeepsItsTrailingSpaceAndIsRejected();
    void commentCutsTheAddressAlone();
    void lastLineMayEndOrNot_data();
    void lastLineMayEndOrNot();
    void blankLineInTheMiddleStopsTheImportAndKeepsTheRowsBefore();
    void lineWithoutSemicolonStopsTheImport();
    void furtherFieldsAreIgnored();
    void rejectedLineLeavesNoGapInTheNumbers();
    void nothingIsTrimmed();
    void sameAddressTwiceGivesTwoRows();
    void nameMayBeEmpty();
    void importReplacesTheWholeList();
    void importSortsByName();
    void emptyFileEmptiesTheListAndIsLogged();

    void lineEnds_data();
    void lineEnds();
    void encodings_data();
    void encodings();
    void binaryFileStopsTheImport();
    void fileOf32767LinesIsImportedWhole();
    void fileOf40000LinesFailsAfter32767Rows();
    void rejectedLineAfterTheLastPossibleRowFailsToo();

    void fileThatCannotBeReadKeepsTheNewPath_data();
    void fileThatCannotBeReadKeepsTheNewPath();
    void noReportAfterAFailure();
    void stateWordIsThatOfTheWindow();
    void boxesAreItalianInItalian();

    void choosingAsksForTheFile();
    void choosingInItalian();
    void choosingNothingChangesNothing();
    void chosenFileIsShownShortened();
    void answerAfterTheProjectWasReplacedIsIgnored();
    void answerAfterARunHasStartedIsIgnored();
    void bareNameLiesInTheProgramFolder();
    void absolutePathStays();
};
