#include "smtp/client/Watchdog.h"

#include <utility>

Watchdog::Watchdog(std::function<void()> onExpired) : m_onExpired(std::move(onExpired))
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { check(); });
}

void Watchdog::start(std::chrono::milliseconds limit)
{
    m_deadline.setRemainingTime(limit);
    if (m_timer.isActive() && m_timerDue <= m_deadline)
        return; // it looks again when it fires
    m_timerDue = m_deadline;
    m_timer.start(limit);
}

void Watchdog::stop()
{
    m_deadline = QDeadlineTimer(QDeadlineTimer::Forever);
}

void Watchdog::check()
{
    if (m_deadline.isForever())
        return;
    if (m_deadline.hasExpired())
        m_onExpired();
    else
        start(std::chrono::ceil<std::chrono::milliseconds>(m_deadline.remainingTimeAsDuration()));
}
