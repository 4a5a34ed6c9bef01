#pragma once

#include <QDeadlineTimer>

#include <algorithm>
#include <chrono>

/// How much time and room a page may take. Layouts can be written whose time doubles with each
/// further element, and the library has no way to be stopped; but it asks each element to do its
/// part.
class HtmlLimits
{
public:
    explicit HtmlLimits(std::chrono::milliseconds patience) : m_patience(patience) {}

    /// From here on the patience counts.
    void begin()
    {
        m_end = QDeadlineTimer(m_patience);
        m_isOver = false;
    }
    /// Once it is over it stays over: the layout lacks something then.
    [[nodiscard]] bool isOver() { return m_isOver = m_isOver || m_end.hasExpired(); }
    /// The same for questions that come by the million.
    [[nodiscard]] bool isOverNowAndThen() { return ++m_questions % 16 == 0 ? isOver() : m_isOver; }
    /// Whether nothing was left out since the beginning.
    [[nodiscard]] bool wasEnough() const { return !m_isOver; }
    /// Adds milliseconds that do not count.
    void prolong(qint64 time) { m_end += time; }
    /// How many columns or rows a cell may span that wants so many.
    [[nodiscard]] int span(int wanted)
    {
        const int further = std::clamp(wanted - 1, 0, std::min(MaxSpan, m_spansLeft));
        m_spansLeft -= further;
        return further + 1;
    }

private:
    static constexpr int MaxSpan = 100;

    std::chrono::milliseconds m_patience;
    QDeadlineTimer m_end;
    bool m_isOver = false;
    unsigned m_questions = 0;
    int m_spansLeft = 10'000;
};
