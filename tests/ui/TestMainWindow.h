#pragma once

#include "WindowTest.h"

class TestMainWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void typedTextsReachTheForm();
    void pastedLinesBecomeOne();
    void fullPathIsTheTooltip();
    void checksReachTheForm();
    void cursorStaysWhereTheUserTypes();
    void shortcutsPressTheirButtons_data();
    void shortcutsPressTheirButtons();
    void shortcutWorksWhereTheMenuIsDisabled();
    void shortcutOfADisabledButtonDoesNothing();
    void menusShowTheShortcuts();
    void f5OpensThePreviewOfTheHtml();
    void previewKnowsTheRecipients();
    void previewOpensFromTheMenuOfItsBox_data();
    void previewOpensFromTheMenuOfItsBox();
    void previewHasItsCaptions_data();
    void previewHasItsCaptions();
    void helpPagesAreTheSameInBothLanguages_data();
    void helpPagesAreTheSameInBothLanguages();
    void exitEndsAtOnce();
    void closingAsksAndStays();
    void closingEndsTheProcessAndKeepsTheWindowsSize();
    void runIsCountedOnTheBar();
    void barKeepsWhatTheLastRunReached();
    void pauseButtonShowsWhatItWouldDo_data();
    void pauseButtonShowsWhatItWouldDo();
};
