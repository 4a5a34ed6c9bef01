#pragma once

#include <QObject>

class TestAddressRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addressesThatServersTake_data();
    void addressesThatServersTake();
    void addressesThatNoServerTakes_data();
    void addressesThatNoServerTakes();
    void letterCaseMakesNoOtherReceiver();
    void freeMailWantsItsOwnServer_data();
    void freeMailWantsItsOwnServer();
    void capitals_data();
    void capitals();
};
