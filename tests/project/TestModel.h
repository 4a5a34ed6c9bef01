#pragma once

#include <QObject>

/// Random orders of everything a user and a server can do. SORVANTA_SEED in the environment repeats
/// a run.
class TestModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomOrdersMailNobodyTwice_data();
    void randomOrdersMailNobodyTwice();
};
