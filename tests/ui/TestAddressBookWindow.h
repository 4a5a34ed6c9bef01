#pragma once

#include "WindowTest.h"

class TestAddressBookWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void captionsOfTheControls_data();
    void captionsOfTheControls();
    void theFirstBookIsOpen();
    void aClickOpensABook();
    void keysOpenABook();
    void aClickOnTheOpenBookReadsItAgain();
    void aBookThatCannotBeSavedStaysSelected();
    void whatCannotBeSavedCanBeGivenUp();
    void aSecondWindowIsNotOpened();
    void aClickAfterAnotherButtonReadsTheBookAgain();
    void aNewContactIsSelectedAndInSight();
    void aNewContactThatWasNotLookedForEndsTheSearch();
    void anEditedContactIsTheRightOneWhenSorted();
    void anEditedContactIsTheRightOneWhenFound();
    void anEditedContactThatIsNotLookedForAnyMoreStaysInSight();
    void theSelectedContactIsEditedWhereverTheKeysAre();
    void aDoubleClickEdits();
    void nothingSelectedEditsNothing();
    void deletingThreeOfFiveLeavesTwoKeyedAnew();
    void theKeysStayWhereContactsWereDeleted();
    void deletedContactsAreTheRightOnesWhenSorted();
    void headingsSort();
    void whatIsTypedIsFound();
    void escapeEndsTheSearchBeforeItClosesTheWindow();
    void keysOfTheLists();
    void controlsWorkOnlyOnAWholeBook();
    void anUnreadableListSaysSo();
    void editingAndClosingWritesTheBookOnce();
    void closingHoldsForWhatIsToBeRead();
    void theTitleBarClosesLikeTheButton();
    void endingTheSessionSavesTheOpenBook();
    void selectedContactsAreCopiedAsText();
    void selectedContactsBecomeRecipients();
    void sizeAndColumnsAreRemembered();
    void tabFollowsTheReadingOrder();
    void everyControlCanBeNamed();
    void aLanguageThatComesLaterIsSpoken();
};
