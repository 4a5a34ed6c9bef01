#include "smtp/TestDialogue.h"
#include "smtp/TestMishaps.h"

#include <QCoreApplication>
#include <QTest>

#include <memory>
#include <vector>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    std::vector<std::unique_ptr<QObject>> tests;
    tests.push_back(std::make_unique<TestDialogue>());
    tests.push_back(std::make_unique<TestMishaps>());
    int failures = 0;
    for (const auto &test : tests)
        failures += QTest::qExec(test.get(), argc, argv);
    return failures;
}
