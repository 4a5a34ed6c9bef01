#include "TestFickleServer.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestFickleServer>(argc, argv);
}
