#pragma once

#include <QObject>

/// One message in the dialogue, without a socket.
class TestTransaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutAfterEachByte_data();
    void cutAfterEachByte();
    void sharedContent();
    void stuffing_data();
    void stuffing();
    void nothingToWrite_data();
    void nothingToWrite();
    void smtpUtf8();
};
