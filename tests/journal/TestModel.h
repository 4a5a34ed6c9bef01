#pragma once

#include <QObject>

/// Random orders of everything that a user, a server and a disk can do to a program which dies now
/// and then. SORVANTA_SEED in the environment repeats a run.
class TestModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomOrdersMailNobodyTwice_data();
    void randomOrdersMailNobodyTwice();
};
