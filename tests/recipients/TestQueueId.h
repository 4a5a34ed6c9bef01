#pragma once

#include <QObject>

/// The queue id in what servers say when they take a message.
class TestQueueId : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void serversNameTheirQueueId_data();
    void serversNameTheirQueueId();
    void otherRepliesNameNone_data();
    void otherRepliesNameNone();
    void refusalsNameNone();
    void anIdThatNobodyWouldCopyIsNone();
    void aVeryLongReplyIsNotSearched();
};
