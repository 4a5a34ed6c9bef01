#include "TestEditorCommands.h"
#include "TestProjectCommands.h"
#include "TestProjectData.h"
#include "TestProjectFile.h"
#include "TestProjectRules.h"
#include "TestWindowLifecycle.h"
#include "TestWindowSettings.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestProjectData, TestProjectRules, TestProjectFile, TestProjectCommands,
                    TestWindowSettings, TestWindowLifecycle, TestEditorCommands>(argc, argv);
}
