#pragma once

#include "support/FakeDiskSync.h"
#include "support/FakeTime.h"

#include "journal/JournalFile.h"

#include <QObject>
#include <QTemporaryDir>

/// Lines on their way to the disk.
class TestJournalFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void whatIsAppendedIsInTheFileAtOnce();
    void oneDiskJobServesAllLinesThatWereGathered();
    void linesAppendedUnderAJobGetTheNextOne();
    void aLineMayWaitForTheDiskFor50Milliseconds();
    void whoWaitsIsCalledWhenTheDiskHasCaughtUp();
    void aDiskThatFailsIsSaidWithTheNextLine();
    void aLineThatFoundNoRoomComesWithTheNext();
    void aFileBegunAnewHoldsNothingElse();
    void whatTheDiskSaysOfAnEarlierContentIsPast();
    void theRealDiskDoesItsJobInAnotherThread();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakeClock> m_clock;
    std::unique_ptr<FakeDiskSync> m_sync;
    std::shared_ptr<JournalFile> m_file;
};
