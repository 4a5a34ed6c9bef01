#include "TestCertificateAdvice.h"
#include "TestCommandLine.h"
#include "TestSendCommand.h"
#include "TestTerminalLogin.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestCommandLine, TestSendCommand, TestTerminalLogin, TestCertificateAdvice>(
        argc, argv);
}
