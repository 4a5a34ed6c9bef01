#pragma once

#include <QObject>

/// The open book and its file.
class TestOpenBook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBookIsReadAndWrittenBack();
    void aRelativeNameLiesInTheProgramsFolder();
    void aMissingBookIsEmptyAndMadeBySaving();
    void aFolderIsNoBook();
    void anEmptyNameIsNoBook();
    void aBookNotReadToItsEndIsNeverWritten();
    void aBookThatCannotBeReadIsNeverWritten();
    void contactsAreAddedReplacedAndRemoved();
    void aBookIsKeptWholeInUtf8WhenANameNeedsIt();
    void aBookInUtf8IsRead();
    void aBookThatOnlyBeginsAsUtf8IsNeverWritten();
    void theSecondSaveWritesTheSameBytes();
    void aBookChangedByAnotherProgramIsNotOverwritten();
    void anUnchangedBookLeavesTheChangesOfAnotherProgram();
    void theSameChangeByAnotherProgramIsNoQuarrel();
    void aBookDeletedByAnotherProgramIsSaved();
    void aFailedSaveLeavesTheOldFile();
    void aBookThatNobodyChangedMayFailToBeWritten();
};
