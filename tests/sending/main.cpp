#include "TestDispatch.h"
#include "TestInFlight.h"
#include "TestMessageFiller.h"
#include "TestMomentTexts.h"
#include "TestNight.h"
#include "TestPacing.h"
#include "TestResults.h"
#include "TestStart.h"
#include "TestTimeTexts.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestTimeTexts, TestMomentTexts, TestStart, TestDispatch, TestResults,
                    TestPacing, TestInFlight, TestMessageFiller, TestNight>(argc, argv);
}
