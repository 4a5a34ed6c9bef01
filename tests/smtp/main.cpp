#include "smtp/TestClient.h"
#include "smtp/TestContract.h"
#include "smtp/TestDialogue.h"
#include "smtp/TestEncryption.h"
#include "smtp/TestHeaders.h"
#include "smtp/TestLogin.h"
#include "smtp/TestMailAddress.h"
#include "smtp/TestMime.h"
#include "smtp/TestMishaps.h"
#include "smtp/TestProbe.h"
#include "smtp/TestReplyReader.h"
#include "smtp/TestSecrecy.h"
#include "smtp/TestServerReportText.h"
#include "smtp/TestStructure.h"
#include "smtp/TestTransaction.h"

#include <QCoreApplication>
#include <QTest>

namespace {

template <typename... Tests>
int runAll(int argc, char **argv)
{
    int failures = 0;
    const auto run = [&](QObject &&test) { failures += QTest::qExec(&test, argc, argv); };
    (run(Tests()), ...);
    return failures;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    return runAll<TestReplyReader, TestMailAddress, TestTransaction, TestHeaders, TestMime,
                  TestStructure, TestContract, TestClient, TestDialogue, TestMishaps,
                  TestEncryption, TestLogin, TestSecrecy, TestProbe, TestServerReportText>(argc,
                                                                                           argv);
}
