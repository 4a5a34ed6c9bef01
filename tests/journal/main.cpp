#include "TestJournalFile.h"
#include "TestRecovery.h"
#include "TestReport.h"
#include "TestReportCommands.h"
#include "TestRunBar.h"
#include "TestRunJournal.h"
#include "TestRunRecord.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestReport, TestReportCommands, TestRunBar, TestRunRecord, TestJournalFile,
                    TestRunJournal, TestRecovery>(argc, argv);
}
