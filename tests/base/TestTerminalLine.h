#pragma once

#include <QObject>

/// A line asked for on a terminal.
class TestTerminalLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lineIsShownWhileItIsTyped();
    void hiddenLineIsNotShown();
    void terminalEditsTheLine();
    void keysThatCancel_data();
    void keysThatCancel();
    void controlKeysRaiseNoSignalMeanwhile();
    void withdrawnQuestionSaysNothingAndGivesTheTerminalBack();
    void objectThatIsGoneGivesTheTerminalBack();
    void closedTerminalCancels();
    void linesAreAskedForOneAfterTheOther();
    void whatIsNoTerminalCannotBeAskedOn_data();
    void whatIsNoTerminalCannotBeAskedOn();
};
