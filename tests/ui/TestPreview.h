#pragma once

#include "WindowTest.h"

class TestPreview : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void optionsFollowTheBoxes_data();
    void optionsFollowTheBoxes();
    void captionsAreThere();
    void optionChangesTheFormat();
    void filesAreReadAsForAMessage_data();
    void filesAreReadAsForAMessage();
    void pictureBesideTheFileIsShown();
    void recipientsNameIsPutIn_data();
    void recipientsNameIsPutIn();
    void nameGoesIntoTheHtmlAsItIs();
    void placeStaysInSightWhenTheRecipientChanges();
    void recipientIsFoundByTyping();
    void listMayHoldEveryRecipient();
    void fileThatCannotBeReadIsNamed();
    void changedFileIsReadAgain_data();
    void changedFileIsReadAgain();
    void windowIsHidden_data();
    void windowIsHidden();
    void otherFilesReplaceTheFirst();
};
