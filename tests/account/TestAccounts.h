#pragma once

#include <QObject>

/// What is kept about servers.
class TestAccounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unknownHostHasTheDefaults();
    void whatIsKeptIsThereInTheNextRun();
    void hostIsTheSameInWhateverCase();
    void hostsHaveNothingInCommon();
    void noHostClimbsOutOfItsKey_data();
    void noHostClimbsOutOfItsKey();
    void hostWithoutANameIsNotKept();
    void contentThatMakesNoSenseCountsAsAbsent();
    void offeredEncryptionIsRememberedOnceForEachPort();
    void trustIsForOneCertificateAndCanBeTakenBack();
    void onlyWhatDiffersIsWritten();
    void fileThatCannotBeWrittenIsSaid();
    void fullDiskIsSaidAndLeavesWhatIsTrusted();
};
