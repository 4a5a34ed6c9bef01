#pragma once

#include "WindowTest.h"

/// The page of a server's account, opened beside the server's box.
class TestAccountWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    // Opening it.
    void itIsThatOfTheServerInTheBox();
    void aServerMustBeNamed_data();
    void aServerMustBeNamed();
    void itIsOpenOnceForEachServer();
    void itBlocksNothing();
    void itCanBeOpenedInAPauseAndNotInARun();

    // What it shows.
    void everyControlHasItsCaption_data();
    void everyControlHasItsCaption();
    void everyInputHasANameOfItsOwn_data();
    void everyInputHasANameOfItsOwn();
    void tabFollowsTheReadingOrder();
    void itShowsWhatIsKept();

    // What is kept.
    void okKeepsWhatWasEntered();
    void cancelAndEscapeChangeNothing_data();
    void cancelAndEscapeChangeNothing();
    void whatCannotBeKeptIsSaidAndThePageStays();
    void theKeyringTakesThePassword();
    void withoutAKeyringThereIsNoPassword();
    void thePasswordIsForgotten();
    void aCertificateIsRemoved();
    void theEncryptionIsForgotten();

    // The trace.
    void theTraceIsOpened();
    void aTraceThatIsNotThereIsSaid();
};
