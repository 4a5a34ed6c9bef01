#pragma once

#include <QObject>

/// The message loaded for a run, and its linked pictures.
class TestMessageBodies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsLoadedFromItsTag();
    void noTextFileLeavesTheBodyAsItIs();
    void textThatCannotBeReadFails();
    void htmlGoesByTheTextShown();
    void htmlTypedWithoutAFileFails();
    void htmlThatCannotBeReadStagesNothing();
    void emptyingForgetsBoth();

    void htmlWithoutLinksPassesAndStaysUnchanged();
    void upperCaseAttributeAndNamePass();
    void webAddressOrAbsolutePathFailsTheCheck_data();
    void webAddressOrAbsolutePathFailsTheCheck();
    void linkIntoASubfolderPassesAndItsPathIsHandedOver();
    void samePictureLinkedTwiceIsCopiedAndHandedOverTwice();
    void checkFailsAtTheFirstMissingPicture();
    void checkOfAnUnreadableFileShowsTheBoxAndPasses();
    void checkReadsTheWholeText();
    void checkEndsAtAnUnclosedLink();

    void linkThatClimbsOutIsNeitherCopiedNorHandedOver_data();
    void linkThatClimbsOutIsNeitherCopiedNorHandedOver();
    void symbolicLinkOutOfTheFolderIsNotCopied();
    void onlyFilesOfTheWorkingFolderAreHandedOver();
    void linkThatTheClientCannotTakeStays();
    void unclosedLinkEndsTheStaging();
    void restOfTheBodyKeepsItsLetterCase();
    void placesHoldBehindLettersThatGrow();
    void pictureOfTheExactNameIsCopied();
    void copyOfAnEarlierRunIsOverwritten();
    void copyOfAnEarlierRunIsNotHandedOverForAMissingPicture();
    void workingFolderThatCannotBeMadeIsPassedOver();

    void workingFolderIsEmptiedInOnePass();
    void missingWorkingFolderIsEmptyAlready();
};
