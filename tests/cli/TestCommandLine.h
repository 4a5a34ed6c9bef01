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
    void sendTakesAReport();
    void pathsComeOutAbsolute();
    void composeNeedsARow();
    void aSettingsValueMayBeginWithADash();
    void whoeverConnectsTakesTheSameOptions_data();
    void whoeverConnectsTakesTheSameOptions();
    void checkCanStayOffline();
    void testTakesAddressAndRow();
    void aServerHasItsPort();
    void anAccountTakesNameAndValue();
};
