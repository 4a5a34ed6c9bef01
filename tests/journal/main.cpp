#include "TestJournalFile.h"
#include "TestModel.h"
#include "TestRecovery.h"
#include "TestReport.h"
#include "TestReportCommands.h"
#include "TestRunBar.h"
#include "TestRunJournal.h"
#include "TestRunRecord.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestRunRecord, TestJournalFile, TestRunJournal, TestRecovery, TestReport,
                    TestReportCommands, TestRunBar, TestModel>(argc, argv);
}
