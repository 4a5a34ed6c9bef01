#pragma once

#include "base/Clock.h"

#include <QString>

/// The identifier of a message: the time without its ".", the date without its "/", "@" and the
/// computer's name. Nothing else is removed: the texts given must be free of what an identifier
/// cannot hold (RFC 5322, section 3.6.4).
[[nodiscard]] QString messageIdentifier(const QString &time, const QString &date,
                                        const QString &computer);

/// The texts of date and time that a message carries, made anew only when the second changes:
/// formatting a date for every message took a quarter of its time.
class MomentTexts
{
public:
    MomentTexts(const Clock &clock, const QString &computer);

    /// "Sat, 21 Nov 2026 09:00:00": local time with English names (RFC 5322, section 3.3), without
    /// the time zone, which the client adds.
    [[nodiscard]] QString dateText();
    /// An identifier that was not given before. It counts microseconds, and goes on from the last
    /// one given when the clock stands or steps back; in UTC, where no hour comes twice.
    [[nodiscard]] QString nextIdentifier();

private:
    const Clock &m_clock;
    QString m_computer;
    qint64 m_dateSecond = -1;
    QString m_dateText;
    qint64 m_lastMicrosecond = 0;
    qint64 m_identifierSecond = -1;
    QString m_timeOfSecond; ///< "hh.mm.ss."
    QString m_dateOfSecond; ///< "dd/mm/yyyy"
};
