#pragma once

#include "WindowTest.h"

/// "Check" in the menu of Start, and the window of the findings.
class TestCheckWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    // The menu of Start.
    void theMenuOpensByMouseAndMenuKey_data();
    void theMenuOpensByMouseAndMenuKey();
    void aRunHasNoMenu();
    void theToolTipSaysThatThereIsAMenu();

    // What is shown.
    void itSpeaksTheLanguageOfTheWindow_data();
    void itSpeaksTheLanguageOfTheWindow();
    void everyKindHasAPictureAndAWord();
    void itSaysThatTheServerIsAsked();
    void nothingToObjectIsSaid();
    void whatTheServerSaysIsAdded();
    void itCanBeCheckedAgain();
    void linesCanBeCopied();

    // Where it leads.
    void aFindingLeadsToItsField_data();
    void aFindingLeadsToItsField();
    void enterLeadsThereToo();
    void aFindingLeadsToItsRow();
    void aRowThatIsGoneIsNowhere();
    void theLastOfAllRowsIsFound();

    // When it is open.
    void itBlocksNothing();
    void itIsOpenOnce();
    void itClosesWhenARunStarts();
    void itClosesWhenTheProjectIsReplaced();
    void closingGivesTheServerUp_data();
    void closingGivesTheServerUp();
};
