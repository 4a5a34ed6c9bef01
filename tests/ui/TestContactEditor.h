#pragma once

#include "WindowTest.h"

class TestContactEditor : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void captionsOfTheControls_data();
    void captionsOfTheControls();
    void theLanguageIsThatOfTheCaption_data();
    void theLanguageIsThatOfTheCaption();
    void editingShowsAllFields();
    void everyFieldComesBack();
    void notesOfSeveralLinesAreKept();
    void notesThatNobodyTouchedStayAsTheyAre();
    void notesKeepTheirBlanksWhenMoreIsWritten();
    void lineEndsThatWerePastedAreDropped();
    void fieldsLongerThanABoxShowsAreKept();
    void aRefusedContactStaysOpen();
    void escapeAndTheTitleBarCancel_data();
    void escapeAndTheTitleBarCancel();
    void enterConfirms();
    void sizeIsRemembered();
    void tabFollowsTheReadingOrder();
    void everyFieldHasItsLabel();
};
