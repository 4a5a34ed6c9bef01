#pragma once

#include <QObject>

/// What people read about a server, step by step.
class TestServerReportText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingIsSaidBeforeTheFirstStep();
    void aNameThatIsNotFoundIsTheOnlyLine();
    void aServerThatIsFoundHasItsAddresses();
    void aConnectionNamesAddressPortAndGreeting();
    void anAddressWithAScopeStaysWhole();
    void everythingIsSaidOnceItIsReady();
    void aLineWithoutEncryptionIsNoted();
    void certificates_data();
    void certificates();
    void logins_data();
    void logins();
    void aFailureComesLast();
    void sizesAreReadInTheUsersFormat();
};
