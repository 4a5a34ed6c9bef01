#include "base/Clock.h"

#include <chrono>

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}

qint64 SystemClock::microseconds() const
{
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(sinceEpoch).count();
}

quint32 SystemClock::tickCount() const
{
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<quint32>(
        std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}

SystemSecondTimer::SystemSecondTimer()
{
    m_timer.setInterval(std::chrono::seconds(1));
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(&m_timer, [this] { onTick(); });
}

void SystemSecondTimer::setEnabled(bool enabled)
{
    // Enabling an enabled timer does not begin its second anew.
    if (enabled && !m_timer.isActive())
        m_timer.start();
    else if (!enabled)
        m_timer.stop();
}
