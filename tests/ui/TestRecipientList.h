#pragma once

#include "WindowTest.h"

class TestRecipientList : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void columnsShareTheRoomAsDesigned();
    void columnsGoOnFillingAListThatGrows();
    void stateIsCentred();
    void pictureFollowsTheImageIndex();
    void tooltipOfAStateIsTheServersReply();
    void tooltipSaysWhoIsInDoubt_data();
    void tooltipSaysWhoIsInDoubt();
    void clickOnAHeadingSortsAndShowsItsArrow();
    void clickOnTheNumberHeadingNeverChangesTheOrder();
    void sortingKeepsTheSelection();
    void clickOnACheckBoxFollowsTheImageRule();
    void spaceChecksWhenSomeSelectedRowIsUnchecked();
    void spaceUnchecksWhenAllSelectedRowsAreChecked();
    void deleteRemovesTheSelectedRows();
    void insertAddsARecipient();
    void listReachedByTabHasARowToWorkOn();
    void keysDoNothingWithoutASelection();
    void menuSelectsByState_data();
    void menuSelectsByState();
    void menuSelectsTheRefusedForNowAndThoseInDoubt_data();
    void menuSelectsTheRefusedForNowAndThoseInDoubt();
    void statesOfTheOtherLanguageAreSelectedToo();
    void menuChecksUnchecksAndRemoves();
    void rowsStillToDoAreCheckedFromTheMenu();
    void menuExportsAReportWheneverThereAreRows();
    void selectedRowsAreCopiedAsText();
    void scatteredRowsAreReadInTheirOrder();
    void changesArePublishedTogether();
    void changesOfAnotherMomentArePublishedAgain();
    void rowBeingSentIsCurrentAndInView();
    void duringARunTheListCanOnlyBeLookedAt();
    void attachmentIsSelectedWhenItIsAdded();
    void attachmentsOfALoadedProjectAreNotSelected();
    void deleteRemovesTheSelectedAttachment();
};
