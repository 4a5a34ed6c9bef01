#include "TestAddressBooks.h"
#include "TestBookIndex.h"
#include "TestBookNames.h"
#include "TestBookText.h"
#include "TestContact.h"
#include "TestContactCheck.h"
#include "TestContactImport.h"
#include "TestContacts.h"
#include "TestOpenBook.h"
#include "TestSeparatedLines.h"
#include "TestShownContacts.h"
#include "TestVCard.h"
#include "TestVCardLines.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestContact, TestBookText, TestBookNames, TestBookIndex, TestOpenBook,
                    TestAddressBooks, TestContacts, TestContactCheck, TestShownContacts,
                    TestSeparatedLines, TestVCardLines, TestVCard, TestContactImport>(argc, argv);
}
