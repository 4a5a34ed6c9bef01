#pragma once

#include "WindowTest.h"

/// Every control and menu of the main window, in both languages.
class TestControls : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    // What is there.
    void theWindowHasTheNameOfItsLanguage();
    void everyControlHasItsKindAndCaption_data();
    void everyControlHasItsKindAndCaption();
    void theListsHaveTheirColumns_data();
    void theListsHaveTheirColumns();
    void theMenusHoldTheirEntriesInOrder_data();
    void theMenusHoldTheirEntriesInOrder();
    void bothWindowsHoldTheSame();
    void whatCanBeOperatedIsAControl();
    void theWindowLoadsWithTheSettingsAndAnEmptyProject_data();
    void theWindowLoadsWithTheSettingsAndAnEmptyProject();

    // What finds its way without a mouse or without eyes.
    void accessKeysReachTheEntries_data();
    void accessKeysReachTheEntries();
    void everyInputHasANameOfItsOwn_data();
    void everyInputHasANameOfItsOwn();
    void theNamesAreInTheLanguageOfTheWindow();
    void labelsAreTheBuddiesOfTheirFields();
    void tabFollowsTheReadingOrder_data();
    void tabFollowsTheReadingOrder();

    // What can be used when.
    void whatIsEnabledFollowsTheRun_data();
    void whatIsEnabledFollowsTheRun();
    void accessKeysOpenNoMenuInARun();
    void aRunLeavesTheListsToBeLookedAt_data();
    void aRunLeavesTheListsToBeLookedAt();

    // What can be typed.
    void lettersAreTypedIntoTextsAndNotIntoNumbers();
    void pastingIsNotFiltered();
};
