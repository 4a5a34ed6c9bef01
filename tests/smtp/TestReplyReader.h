#pragma once

#include <QObject>

/// The server's bytes as replies.
class TestReplyReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reply_data();
    void reply();
    void severalReplies();
    void notAReply_data();
    void notAReply();
    void limits();
    void extensions_data();
    void extensions();
};
