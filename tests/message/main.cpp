#include "TestAttachments.h"
#include "TestLinkedFiles.h"
#include "TestMessageBodies.h"
#include "TestMessageFiles.h"
#include "TestMessageReader.h"
#include "TestMessageSize.h"
#include "support/RunTests.h"

int main(int argc, char **argv)
{
    return runTests<TestMessageReader, TestMessageFiles, TestMessageSize, TestAttachments,
                    TestLinkedFiles, TestMessageBodies>(argc, argv);
}
