#pragma once

#include <QObject>

/// The attachments and their commands.
class TestAttachments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addingAsksForTheFile();
    void addingInItalian();
    void addedFileIsLastAndLogged();
    void addingNothingChangesNothing();
    void addingLeavesTheDocumentFolder();
    void sameAttachmentAddedTwiceCountsTwiceAndIsListedTwice();
    void shownTextIsShortened();
    void answerAfterTheProjectWasReplacedIsIgnored();
    void removingLogsTheShownText();
    void removingWithAnEmptyListLogsAnEmptyNameAndMarksTheProject();
    void removingWithNothingSelectedIsAsWithAnEmptyList();
    void listSaysWhenItChanges();
};
