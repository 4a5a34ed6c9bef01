#include "TestContact.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestContact>(argc, argv);
}
