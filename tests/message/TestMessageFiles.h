#pragma once

#include <QObject>

/// Choosing, forgetting and creating the message files.
class TestMessageFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogs_data();
    void dialogs();
    void chosenFileIsTheMessage_data();
    void chosenFileIsTheMessage();
    void choosingNothingChangesNothing();
    void chosenTextIsNotRead();
    void dialogOpensInTheFolderOfTheLastChoice();
    void folderOfTheLastChoiceIsKeptInTheSettings();
    void folderBeyondTheCodePageIsKept();
    void answerAfterTheProjectWasReplacedIsIgnored();
    void answerAfterARunHasStartedIsIgnored();
    void clearingForgetsTheFile_data();
    void clearingForgetsTheFile();

    void newFileIsCreatedEmpty();
    void newFileThatExistsIsLeftAsItIs();
    void newFileThatWasNotNamedIsNone();
    void newFileThatCannotBeCreatedIsSaidAndIsNone();
};
