#include "TestEditorCommands.h"
#include "TestProjectCommands.h"
#include "TestProjectData.h"
#include "TestProjectFile.h"
#include "TestWindowLifecycle.h"
#include "TestWindowSettings.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestProjectData, TestProjectFile, TestProjectCommands, TestWindowSettings,
                    TestWindowLifecycle, TestEditorCommands>(argc, argv);
}
