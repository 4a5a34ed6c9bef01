#pragma once

#include <QDeadlineTimer>
#include <QTimer>

#include <chrono>
#include <functional>

/// A limit on waiting that is moved for every command. The timer behind it is left alone where it
/// can be: moving a limit costs a look at the clock.
class Watchdog
{
public:
    explicit Watchdog(std::function<void()> onExpired);

    /// The limit expires so much from now.
    void start(std::chrono::milliseconds limit);
    void stop();

private:
    void check();

    QTimer m_timer;
    QDeadlineTimer m_deadline;
    QDeadlineTimer m_timerDue; ///< when the running timer fires
    std::function<void()> m_onExpired;
};
