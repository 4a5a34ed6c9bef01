#include "TestAttemptText.h"
#include "TestQueueId.h"
#include "TestRecipientCommands.h"
#include "TestRecipientDetails.h"
#include "TestRecipientList.h"
#include "TestRecipientsFile.h"
#include "TestRecipientsRules.h"
#include "TestStateWords.h"
#include "TestTotals.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestStateWords, TestAttemptText, TestRecipientList, TestRecipientCommands,
                    TestRecipientsFile, TestRecipientsRules, TestQueueId, TestTotals,
                    TestRecipientDetails>(argc, argv);
}
