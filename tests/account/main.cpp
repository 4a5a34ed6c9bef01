#include "TestAccountPage.h"
#include "TestAccountValues.h"
#include "TestAccounts.h"
#include "TestCertificateQuestion.h"
#include "TestCommandOutput.h"
#include "TestLoginChain.h"
#include "TestNetrc.h"
#include "TestSecrets.h"
#include "TestTraceFile.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestAccounts, TestAccountValues, TestNetrc, TestCommandOutput, TestLoginChain,
                    TestTraceFile, TestCertificateQuestion, TestSecrets, TestAccountPage>(argc,
                                                                                          argv);
}
