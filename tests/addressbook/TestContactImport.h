#pragma once

#include <QObject>

/// Contacts of other programs, made fit for a book.
class TestContactImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatIsTheOneTheFileBeginsAs_data();
    void formatIsTheOneTheFileBeginsAs();
    void byteOrderMarksAreUnderstood_data();
    void byteOrderMarksAreUnderstood();
    void linesAreReadInTheirEncoding_data();
    void linesAreReadInTheirEncoding();
    void emptyFileGivesNothing();

    void everyContactHasANameOrACompany_data();
    void everyContactHasANameOrACompany();
    void everyContactHasADisplayName_data();
    void everyContactHasADisplayName();
    void blanksAroundNameAndAddressAreDropped();
    void separatorsOfABookBecomeCommas();
    void lineEndsBecomeBlanksButInTheNotes();
    void lineEndsOfTheNotesAreCrLf();
    void lineEndsOfABookAreUnderstood();
    void displayNameKeepsWhatABookDoesNotReadThere();

    void addressThatNoBookKeepsIsLeftOut_data();
    void addressThatNoBookKeepsIsLeftOut();
    void commentsOfBooksAreDropped();
    void linesWithoutAddressAreLeftOut();
    void cardsWithoutAddressAreLeftOut();
    void eachAddressOfACardIsAContact();
    void leftOutFieldsAreCountedOnceACard();

    void anyFileGivesContactsThatABookKeeps();
    void oddFilesAreRead_data();
    void oddFilesAreRead();
};
