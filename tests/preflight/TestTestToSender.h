#pragma once

#include <QObject>

/// "Send a test to me", without its window.
class TestTestToSender : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itGoesToTheSendersAddress();
    void senderWithoutAnAddressIsTold_data();
    void senderWithoutAnAddressIsTold();
    void whatBecameOfItIsTold_data();
    void whatBecameOfItIsTold();
    void aTestThatIsStoppedSaysNothing();
    void nothingOfTheProjectIsTouched();
};
