#include "TestAccountCommand.h"
#include "TestCertificateAdvice.h"
#include "TestCheckCommand.h"
#include "TestCommandLine.h"
#include "TestComposeCommand.h"
#include "TestSendCommand.h"
#include "TestServerCommand.h"
#include "TestTerminalLogin.h"
#include "TestTestCommand.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestCommandLine, TestSendCommand, TestCheckCommand, TestTestCommand,
                    TestServerCommand, TestAccountCommand, TestComposeCommand, TestTerminalLogin,
                    TestCertificateAdvice>(argc, argv);
}
