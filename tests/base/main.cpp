#include "TestAppendedFile.h"
#include "TestCodePage.h"
#include "TestFiles.h"
#include "TestHelpPages.h"
#include "TestInputFields.h"
#include "TestLines.h"
#include "TestModMain.h"
#include "TestNumbers.h"
#include "TestProgramFolder.h"
#include "TestRegionalFormats.h"
#include "TestServerReply.h"
#include "TestTerminalLine.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    if (TestCodePage::runAsSecondProgram(argc, argv))
        return 0;
    return runTests<TestAppendedFile, TestCodePage, TestLines, TestInputFields, TestNumbers,
                    TestModMain, TestFiles, TestProgramFolder, TestRegionalFormats, TestServerReply,
                    TestHelpPages, TestTerminalLine>(argc, argv);
}
