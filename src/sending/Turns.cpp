#include "sending/Turns.h"

void Turns::take(std::function<void()> command)
{
    // Whoever comes while others wait stands behind them.
    if (m_closed || !m_waiting.empty())
        m_waiting.push_back(std::move(command));
    else
        command();
}

void Turns::close()
{
    m_closed = true;
}

void Turns::open()
{
    m_closed = false;
    QMetaObject::invokeMethod(this, &Turns::runWaiting, Qt::QueuedConnection);
}

void Turns::runWaiting()
{
    while (!m_closed && !m_waiting.empty()) {
        const auto command = std::move(m_waiting.front());
        m_waiting.pop_front();
        command();
    }
}
