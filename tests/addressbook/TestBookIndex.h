#pragma once

#include <QObject>

/// The list of the address books.
class TestBookIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoLinesAreABook();
    void anOddLastLineIsABookWithoutAFile();
    void anEmptyIndexHasNoBooks();
    void booksOfOneNameAreAllThere();
    void aMissingIndexIsMadeWithAStandardBook_data();
    void aMissingIndexIsMadeWithAStandardBook();
    void aStandardBookThatIsThereStaysWhatItIs();
    void anIndexThatCannotBeReadStays();
    void anIndexThatOnlyBeginsAsUtf8Stays();
    void aFileWhoseNameHasALineEndIsNoBook();
    void savingReplacesTheList();
    void anotherBookLeavesTheBytesBeforeIt();
    void anotherBookAfterAnUnfinishedLine();
    void anotherBookAfterABookWithoutAFile_data();
    void anotherBookAfterABookWithoutAFile();
    void namesBeyondTheCodePageAreKept();
    void namesAreReadInTheCodePageAndInUtf8();
    void nothingIsAddedToAnIndexThatCannotBeRead();
};
