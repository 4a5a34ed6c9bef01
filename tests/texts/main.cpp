#include "TestItalianCatalogue.h"
#include "TestItalianRun.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestItalianCatalogue, TestItalianRun>(argc, argv);
}
