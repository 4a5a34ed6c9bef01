#pragma once

#include <QObject>

/// A test sent to somebody, in every order in which a client can tell what happens.
class TestTestMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMessageGoesToTheAddressInASessionOfItsOwn();
    void theServersReplyIsTheResult_data();
    void theServersReplyIsTheResult();
    void anErrorOfTheSessionIsTheResult();
    void anErrorInDoubtIsSaidSo();
    void whatCannotBeginIsSaidFromTheEventLoop_data();
    void whatCannotBeginIsSaidFromTheEventLoop();
    void aFileThatVanishesWhileConnectingEndsIt();
    void aSecondSendGivesUpTheFirstBeforeItIsReady();
    void aSecondSendGivesUpTheFirstInFlight();
    void anErrorOfTheMessageGivenUpLeavesTheSecondAlone();
    void givingUpSaysNothingMore();
    void givingUpWhatCannotBeginSaysNothingMore();
    void eventsOutOfTurnChangeNothing();
    void whoeverHearsTheResultMaySendAgain();
    void aCheckWhileConnectingDoesNotChangeTheMessage();
};
