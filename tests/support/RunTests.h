#pragma once

#include <QCoreApplication>
#include <QTest>

/// Runs each of the test classes and returns the number of failures.
template <typename... Tests>
int runTests(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const auto failuresOf = [argc, argv](QObject &&test) {
        return QTest::qExec(&test, argc, argv);
    };
    return (failuresOf(Tests()) + ...);
}
