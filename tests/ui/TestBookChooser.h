#pragma once

#include "WindowTest.h"

class TestBookChooser : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void captionsOfTheDialog_data();
    void captionsOfTheDialog();
    void theFirstBookIsSelected();
    void aMissingListIsMade();
    void aChosenBookBecomesTheRecipients();
    void contactsWithoutAValidAddressAreReported();
    void aDoubleClickConfirmsWithTheClickedBook();
    void enterConfirms();
    void cancellingChangesNothing_data();
    void cancellingChangesNothing();
    void aListWithNothingSelectedChoosesNothing();
    void anEmptyListChoosesNothing();
    void anUnreadableListSaysSo();
    void anEmptyBookEmptiesTheRecipients();
    void aBookWhoseFileIsMissingIsAFailedImport();
    void sizeIsRemembered();
};
