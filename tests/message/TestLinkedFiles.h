#pragma once

#include <QObject>

/// Links in a text, and the files that they name.
class TestLinkedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void links_data();
    void links();
    void linkWithoutItsEndIsUnclosed();
    void lowerCaseKeepsEveryPlace();
    void linksThatStayBelow_data();
    void linksThatStayBelow();
    void filesFound_data();
    void filesFound();
    void exactLetterCaseComesFirst();
    void symbolicLinkOutOfTheFolderIsNoFile();
    void symbolicLinkInsideTheFolderIsAFile();
    void folderMayItselfBeReachedByASymbolicLink();
    void folderThatIsMissingHasNoFiles();
    void relativeFolderIsFound_data();
    void relativeFolderIsFound();
};
