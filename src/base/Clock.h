#pragma once

#include <QDateTime>
#include <QTimer>

#include <functional>

/// The time, handed in: a run of a day is a test of milliseconds.
class Clock
{
public:
    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    /// The present moment in local time, with the offset from UTC that holds at that moment.
    [[nodiscard]] virtual QDateTime now() const = 0;
    /// Microseconds since 1970-01-01 UTC. May step back when the machine's clock is set.
    [[nodiscard]] virtual qint64 microseconds() const = 0;
    /// The same in milliseconds.
    [[nodiscard]] qint64 milliseconds() const
    {
        constexpr qint64 MicrosecondsPerMillisecond = 1000;
        return microseconds() / MicrosecondsPerMillisecond;
    }
    /// Milliseconds of a counter that never stops and wraps after 2^32.
    [[nodiscard]] virtual quint32 tickCount() const = 0;
};

class SystemClock final : public Clock
{
public:
    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] qint64 microseconds() const override;
    [[nodiscard]] quint32 tickCount() const override;
};

/// A timer that ticks once a second while it is enabled.
class SecondTimer
{
public:
    SecondTimer() = default;
    SecondTimer(const SecondTimer &) = delete;
    SecondTimer &operator=(const SecondTimer &) = delete;
    virtual ~SecondTimer() = default;

    virtual void setEnabled(bool enabled) = 0;
    [[nodiscard]] virtual bool isEnabled() const = 0;

    /// What a tick does; set once, before the timer is first enabled.
    std::function<void()> onTick;
};

class SystemSecondTimer final : public SecondTimer
{
public:
    SystemSecondTimer();

    void setEnabled(bool enabled) override;
    [[nodiscard]] bool isEnabled() const override { return m_timer.isActive(); }

private:
    QTimer m_timer;
};
