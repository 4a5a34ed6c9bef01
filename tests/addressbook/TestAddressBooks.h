#pragma once

#include <QObject>

/// What the address book window does with books.
class TestAddressBooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstBookIsOpenedFirst();
    void aMissingIndexIsMadeOnFirstUse();
    void anEmptyIndexOpensNoBook();
    void anIndexThatCannotBeReadIsSaidInTheLine();
    void aBookWithoutAFileCannotBeChanged();
    void aClickWritesTheOpenBookBeforeTheOtherIsRead();
    void aClickOnTheOpenBookSavesAndReadsItAgain();
    void aBookNotReadToItsEndSaysSoAndIsLeftAlone();
    void changesAreKeptInMemoryUntilTheBookIsLeft();
    void closingWithoutChangesWritesWhatWasRead();
    void whatAnotherProgramChangedIsSaidAndShown();
    void aBookThatCannotBeSavedIsNotLeft();
    void whatCannotBeSavedCanBeGivenUp();
    void aBookThatCannotBeReadAnyMoreIsSavedBeside();
    void theEndOfTheSessionSavesWhereItCan();
    void aNewBookIsAddedSelectedAndOpened();
    void theProposedNameIsFree();
    void aNameThatIsTakenIsRefused();
    void aNameThatDiffersOnlyInLetterCaseIsAccepted();
    void aFileThatIsTakenIsRefused();
    void anExistingFileBecomesTheNewBook();
    void noNameAndNoFileEndTheCommand();
    void theOpenBookIsSavedBeforeANewOneIsOpened();
    void aNewBookThatCannotBeMadeChangesNothing();
    void aBookThatFindsNoRoomInTheListIsNotAdded();
    void aListThatCannotBeSavedStays();
    void whatAnotherProgramAddedIsTakenToo();
    void theStandardBookIsNotDeleted();
    void theOnlyBookIsNotDeletedEither();
    void aDeletedBookLeavesItsFile();
    void deletingABookCanBeCancelled();
    void aBookOfAnotherProgramSurvivesADeletion();
    void textsOfTheMessages_data();
    void textsOfTheMessages();
};
