#include "TestContact.h"
#include "TestSeparatedLines.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestContact, TestSeparatedLines>(argc, argv);
}
