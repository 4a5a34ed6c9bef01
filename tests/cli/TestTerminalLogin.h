#pragma once

#include <QObject>

/// A login asked for on a terminal.
class TestTerminalLogin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void userAndPasswordAreAskedFor();
    void knownUserIsNotAskedFor();
    void passwordIsNotShown();
    void wordsOfTheServerDoNotDriveTheTerminal();
    void cancelIsNothing_data();
    void cancelIsNothing();
    void answerThatNobodyWaitsForIsNotGiven();
    void staleQuestionIsWithdrawn();
    void staleQuestionMakesRoomForTheNext();
    void secondQuestionWaitsForTheFirst();
    void withoutATerminalTheAnswerIsNothing();
    void terminalIsGivenBackWhenItIsGone();
};
