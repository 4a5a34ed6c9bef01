#pragma once

#include <QObject>

/// What becomes of a message when something goes wrong, at each point of a session and in each of
/// the three ways to hand a message over.
class TestMishaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opening_data();
    void opening();
    void cut_data();
    void cut();
    void secondCut_data();
    void secondCut();
    void serviceNotAvailable_data();
    void serviceNotAvailable();
    void refusal_data();
    void refusal();
};
