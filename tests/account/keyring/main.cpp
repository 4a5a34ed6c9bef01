#include "TestKeyring.h"
#include "TestNoKeyring.h"
#include "support/RunTests.h"

#include <cstring>

// The first argument says whether there is a keyring.
int main(int argc, char **argv)
{
    const bool isPresent = argc > 1 && std::strcmp(argv[1], "present") == 0;
    return isPresent ? runTests<TestKeyring>(1, argv) : runTests<TestNoKeyring>(1, argv);
}
