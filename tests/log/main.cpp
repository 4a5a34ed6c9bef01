#include "TestLog.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestLog>(argc, argv);
}
