#pragma once

#include <QObject>

/// The program's helpers for addresses and paths.
class TestModMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addressNeedsNameAtAndADotWithTwoCharactersBehind();
    void spaceInAnAddressIsNotChecked();
    void addressWithAForbiddenCharacterIsInvalid_data();
    void addressWithAForbiddenCharacterIsInvalid();
    void addressIsCheckedNoFurther_data();
    void addressIsCheckedNoFurther();
    void emptyTextIsNoAddress();
    void onlyTheFirstDotBehindTheAtCounts();

    void wrapOfANetworkPathKeepsTheServer();
    void wrapStopsWhenNoFolderIsLeft();
    void wrapStopsAsSoonAsThePathFits();
    void wrapGoesOnWhenAShortFolderMakesItLonger();
    void wrapLeavesWhatFitsOrHasNoFolder_data();
    void wrapLeavesWhatFitsOrHasNoFolder();
    void wrapOfANativePathFollowsItsSeparator_data();
    void wrapOfANativePathFollowsItsSeparator();

    void folderAndFileName_data();
    void folderAndFileName();

    void sizeOfAFile();
    void sizeOfAFileWrittenWithBackslashes();
    void sizeOfWhatIsNoFileIsMinusOne_data();
    void sizeOfWhatIsNoFileIsMinusOne();
    void sizeOfAFileThatCannotBeOpenedIsMinusOne();
    void sizeOfLargeFilesIsTheLow32Bits();

    void nameIsPutBelowTheProgramFolder_data();
    void nameIsPutBelowTheProgramFolder();
    void joinedPaths_data();
    void joinedPaths();
};
