#pragma once

#include "WindowTest.h"

/// "Test the connection" on the page of an account.
class TestAccountTrial : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTestShowsItsLinesAsTheyCome();
    void goodAndBadAreToldApartWithoutColour();
    void linesCanBeCopiedWhole();
    void theTestCanBeStopped();
    void theTestKeepsWhatWasEntered();
    void aRefusedCertificateCanBeTrusted();
    void closingGivesTheTestUp();
    void twoServersAreTestedAtOnce();
    void itsLoginBoxCanBeUsedAndClosesWithTheTest();
};
