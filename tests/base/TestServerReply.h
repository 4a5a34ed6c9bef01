#pragma once

#include <QObject>

/// A server's reply as a value.
class TestServerReply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void positiveRepliesAreThoseOf2xxAnd3xx();
    void refusalsForNowAreThoseOf4xx();
    void commandsHaveTheNamesOfTheDialogue();
    void emptyIsNoReplyAtAll();
};
