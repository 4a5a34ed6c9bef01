#include "TestAccountValues.h"
#include "TestAccounts.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestAccounts, TestAccountValues>(argc, argv);
}
