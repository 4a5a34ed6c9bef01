#include "TestAddressRules.h"
#include "TestHtmlWords.h"
#include "TestPreflight.h"
#include "TestTestMessage.h"
#include "TestTestToSender.h"
#include "TestTrialMessage.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestAddressRules, TestHtmlWords, TestTrialMessage, TestTestMessage,
                    TestPreflight, TestTestToSender>(argc, argv);
}
