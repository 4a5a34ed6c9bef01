#pragma once

#include "base/Clock.h"
#include "base/RegionalFormats.h"

/// A clock that stands until the test moves it.
class FakeClock : public Clock
{
public:
    [[nodiscard]] QDateTime now() const override
    {
        return QDateTime::fromMSecsSinceEpoch(m_microseconds / MicrosecondsPerMillisecond,
                                              Qt::OffsetFromUTC, offsetFromUtc);
    }
    [[nodiscard]] qint64 microseconds() const override { return m_microseconds; }
    [[nodiscard]] quint32 tickCount() const override { return ticks; }

    void setUtc(const QDateTime &moment)
    {
        m_microseconds = moment.toMSecsSinceEpoch() * MicrosecondsPerMillisecond;
    }
    void advanceMilliseconds(qint64 milliseconds)
    {
        m_microseconds += milliseconds * MicrosecondsPerMillisecond;
        ticks += static_cast<quint32>(milliseconds);
    }
    void advanceMicroseconds(qint64 microseconds) { m_microseconds += microseconds; }

    int offsetFromUtc = 3600; ///< seconds
    quint32 ticks = 0;

private:
    static constexpr qint64 MicrosecondsPerMillisecond = 1000;
    // 21 November 2026, 09:00:00 in the clock's zone.
    qint64 m_microseconds = Q_INT64_C(1795248000) * 1'000'000;
};

/// A timer that ticks when the test says so.
class FakeTimer : public SecondTimer
{
public:
    void setEnabled(bool enabled) override { m_enabled = enabled; }
    [[nodiscard]] bool isEnabled() const override { return m_enabled; }
    /// Ticks if it is enabled.
    void tick() const
    {
        if (m_enabled)
            onTick();
    }

private:
    bool m_enabled = false;
};

/// dd/mm/yyyy, hh:mm:ss and a decimal sign of the test's choice.
class FakeFormats : public RegionalFormats
{
public:
    [[nodiscard]] QString shortDate(const QDateTime &moment) const override
    {
        return moment.toString(QStringLiteral("dd/MM/yyyy"));
    }
    [[nodiscard]] QString longTime(const QDateTime &moment) const override
    {
        return moment.toString(QStringLiteral("HH:mm:ss"));
    }
    [[nodiscard]] QChar decimalSign() const override { return sign; }

    QChar sign = u'.';
};
