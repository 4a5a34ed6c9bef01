#pragma once

#include <QObject>

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongUsage_data();
    void wrongUsage();
    void helpAndVersionAreNoFailure_data();
    void helpAndVersionAreNoFailure();
    void sendTakesItsOptions();
    void pathsComeOutAbsolute();
    void composeNeedsARow();
    void aSettingsValueMayBeginWithADash();
};
