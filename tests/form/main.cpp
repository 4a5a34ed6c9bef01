#include "TestForm.h"
#include "TestRunState.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestRunState, TestForm>(argc, argv);
}
