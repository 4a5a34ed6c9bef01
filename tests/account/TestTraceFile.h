#pragma once

#include <QObject>

/// The dialogue with a server in a file.
class TestTraceFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesSayWhenWithWhomAndWhoSpoke();
    void lineIsInTheFileAtOnce();
    void whatIsThereStays();
    void onlyItsOwnerCanReadIt();
    void controlCharactersAreVisibleAndForgeNoLine();
    void hostsAreThoseOfTheAccounts();
    void everyHostIsWantedWithoutAccounts();
    void nothingIsMadeBeforeTheFirstLine();
    void fileThatCannotBeOpenedIsSaidOnce();
    void fullDiskIsSaidOnceAndLeavesWholeLines();
    void pipeIsNotWaitedFor();
};
