#pragma once

#include "WindowTest.h"

class TestDetailsWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDoubleClickOnTheStateOpensIt_data();
    void aDoubleClickOnTheStateOpensIt();
    void otherColumnsAndEnterDoNot();
    void theMenuOpensItForTheCurrentRow();
    void withoutARowTheMenuHasNoDetails();
    void itSaysWhatIsKnown_data();
    void itSaysWhatIsKnown();
    void itIsOneWindowForWhicheverRow();
    void itBlocksNothing();
    void itFollowsTheRowThroughARun();
    void itFollowsTheRowWhereverItMoves();
    void itSaysThatTheRowIsGone();
    void itClosesWhenTheProjectIsReplaced();
    void itCloses_data();
    void itCloses();
    void everythingIsCopied();
    void aPartCanBeSelectedByKeyboardAndCopied();
    void longTextsWrap();
    void whatServersSayIsNoMarkup();
    void tabVisitsTextAndButtons();
};
