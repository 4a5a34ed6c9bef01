#pragma once

#include <QObject>

/// Editing the recipient list by hand.
class TestRecipientCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addingToAnEmptyListGivesOne();
    void addingToAListOfSevenGivesEightAlsoWhenItIsSorted();
    void addedRowIsWaitingCheckedAndHasItsPicture();
    void addedRowIsSortedByName();
    void nameAndAddressAreKeptAsTyped();
    void sameAddressMayBeAddedAgain();
    void emptyNameEndsTheCommand();
    void nameAndThenNoAddressAddsNothing();
    void invalidAddressIsAskedForAgainAndTheNameIsNot();
    void invalidAddressMayBeGivenUp();
    void boxesAreItalianInItalian();
    void answerAfterTheProjectWasReplacedAddsNothing();
    void answerAfterARunHasStartedAddsNothing();

    void severalAreAddedAsByHand();
    void addingSeveralLeavesOutInvalidAddresses();
    void addingOnlyInvalidAddressesChangesNothing();
    void removingRowsTwoAndThreeOfFourLeavesOneAndTwo();
    void removingNothingStillMarksTheProject();

    void checkChangesTheSelectedRowsAlone();
    void uncheckChangesTheSelectedRowsAlone();
    void checkWithNothingSelectedStillMarksTheProject();
    void uncheckWithNothingSelectedStillMarksTheProject();

    void uncheckingAHandAddedRowGivesFive();
    void checkOnTheSameRowGivesTwoWhateverItWas_data();
    void checkOnTheSameRowGivesTwoWhateverItWas();
    void anyIndexMovesByTheSameRule_data();
    void anyIndexMovesByTheSameRule();
    void checkingARowMarksTheProject();

    void clickingNameTwiceSortsAndThenReverses();
    void clickingNumberNeverChangesTheOrder();
    void clickingAnotherColumnKeepsTheOrder();
    void clickingBesideTheColumnsDoesNothing();
    void sortingDoesNotMarkTheProject();
};
