#include "TestRegFile.h"
#include "TestRegFileStore.h"
#include "TestSettings.h"

#include <QCoreApplication>
#include <QTest>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    TestRegFileStore::runAsSecondProgram(QCoreApplication::arguments());

    TestSettings settings;
    TestRegFile regFile;
    TestRegFileStore store;
    int failures = 0;
    for (QObject *test : {static_cast<QObject *>(&settings), static_cast<QObject *>(&regFile),
                          static_cast<QObject *>(&store)})
        failures += QTest::qExec(test, argc, argv);
    return failures;
}
