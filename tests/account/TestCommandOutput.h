#pragma once

#include <QObject>

/// What a command prints.
class TestCommandOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstLineIsTaken_data();
    void firstLineIsTaken();
    void failureIsSaidWithoutWhatWasPrinted_data();
    void failureIsSaidWithoutWhatWasPrinted();
    void commandThatNeverEndsIsEnded();
    void commandReadsNothing();
    void noShellLooksAtIt();
    void answerNeverComesFromInsideTheCall();
    void nothingComesWhenNobodyWaitsAnyMore();
};
