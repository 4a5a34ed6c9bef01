#pragma once

#include "WindowTest.h"

class TestDialogs : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void editorChooserShowsTheEditors();
    void editorCaptions_data();
    void editorCaptions();
    void okStoresTheEditors();
    void okWithBothBoxesEmptyStoresTheDefaults();
    void cancelAndEscapeChangeNothing_data();
    void cancelAndEscapeChangeNothing();
    void browsingFillsTheBox();
    void browsingCancelledKeepsTheBox();
    void aboutShowsTheVersion();
    void aboutCaption_data();
    void aboutCaption();
    void linksOfTheAboutBoxOpen_data();
    void linksOfTheAboutBoxOpen();
    void okClosesTheAboutBox();
    void sizeAndColumnsAreRemembered();
    void damagedMemoryOfTheWindowIsIgnored();
};
