#pragma once

#include <QObject>

#include <deque>
#include <functional>

/// Commands of the user take turns: while a save waits for the message in flight, those that would
/// change what is being saved wait behind it.
class Turns : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Runs the command now, or in its turn. It has to look for itself whether it still applies.
    void take(std::function<void()> command);
    /// From now on commands wait.
    void close();
    /// The waiting commands run, in order and from the event loop, until one closes again.
    void open();

private:
    void runWaiting();

    bool m_closed = false;
    std::deque<std::function<void()>> m_waiting;
};
