#pragma once

#include <QObject>

/// What every client of the contract does, the one in memory that the engine's tests use and the
/// real one.
class TestContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void session_data();
    void session();
    void refused_data();
    void refused();
    void resetEmptiesTheMessage_data();
    void resetEmptiesTheMessage();
    void sendEmptiesTheAttachments_data();
    void sendEmptiesTheAttachments();
    void noEventInsideACall_data();
    void noEventInsideACall();
    void nothingAfterDisconnect_data();
    void nothingAfterDisconnect();
    void messageInFlightFinishes_data();
    void messageInFlightFinishes();
    void connectWaits_data();
    void connectWaits();
    void disconnectDropsTheConnectThatWaits_data();
    void disconnectDropsTheConnectThatWaits();
    void inlineFilesStay_data();
    void inlineFilesStay();
};
