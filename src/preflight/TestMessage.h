#pragma once

#include <QObject>

/// "Send a test to me": the message as a row of the list would get it, sent outside any run.
class TestMessage : public QObject
{
    Q_OBJECT

public:
    /// Sends the message that the row at this position (1 is the first; a list without rows: a
    /// message without a name) would get, to that address. One that is under way is given up.
    void send(int position, const QString &address);
    /// Gives up without a further signal, as far as the message has not been handed over.
    void giveUp();

Q_SIGNALS:
    /// It is over. The text says in plain words what became of it: the server's reply, or why the
    /// message was not sent.
    void finished(bool accepted, const QString &text);
};
