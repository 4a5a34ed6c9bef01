#include "TestEditorCommands.h"
#include "TestProjectCommands.h"
#include "TestProjectData.h"
#include "TestProjectFile.h"
#include "TestProjectRules.h"
#include "TestTwoPrograms.h"
#include "TestWindowLifecycle.h"
#include "TestWindowSettings.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    if (TestTwoPrograms::runAsSecondProgram(argc, argv))
        return 0;
    return runTests<TestProjectData, TestProjectRules, TestProjectFile, TestTwoPrograms,
                    TestProjectCommands, TestWindowSettings, TestWindowLifecycle,
                    TestEditorCommands>(argc, argv);
}
