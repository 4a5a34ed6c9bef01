#pragma once

#include <QObject>

/// Exporting the report of the project that is open.
class TestReportCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksWhereToWrite();
    void chosenFileGetsTheReport();
    void choosingNothingWritesNothing();
    void reportIsOfTheMomentOfTheAnswer();
    void runThatEndsMeanwhileIsStillTheProjects();
    void answerAfterTheProjectWasReplacedIsIgnored();
    void fileThatCannotBeWrittenIsSaidInABox();
};
