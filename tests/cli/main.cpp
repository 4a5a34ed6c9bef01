#include "TestCommandLine.h"
#include "TestSendCommand.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestCommandLine, TestSendCommand>(argc, argv);
}
