#include "TestContact.h"
#include "TestContactImport.h"
#include "TestSeparatedLines.h"
#include "TestVCard.h"
#include "TestVCardLines.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestContact, TestSeparatedLines, TestVCardLines, TestVCard, TestContactImport>(
        argc, argv);
}
