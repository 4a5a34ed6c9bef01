#pragma once

#include <QCoreApplication>
#include <QTest>

/// Runs each of the test classes inside an application of that kind and returns the number of
/// failures.
template <typename Application, typename... Tests>
int runTestsIn(int argc, char **argv)
{
    const Application application(argc, argv);
    const auto failuresOf = [argc, argv](QObject &&test) {
        return QTest::qExec(&test, argc, argv);
    };
    return (failuresOf(Tests()) + ...);
}

/// The same without windows.
template <typename... Tests>
int runTests(int argc, char **argv)
{
    return runTestsIn<QCoreApplication, Tests...>(argc, argv);
}
