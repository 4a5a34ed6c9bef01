#pragma once

#include <QObject>

/// Two programs on one project's file.
class TestTwoPrograms : public QObject
{
    Q_OBJECT

public:
    /// What this program does when a test starts it a second time; nothing for any other arguments.
    static bool runAsSecondProgram(int argc, char **argv);

private Q_SLOTS:
    void aFileThatTwoSaveAtOnceIsAlwaysThatOfOne();
};
