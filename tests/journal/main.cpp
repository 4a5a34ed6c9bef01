#include "TestReport.h"
#include "TestReportCommands.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestReport, TestReportCommands>(argc, argv);
}
