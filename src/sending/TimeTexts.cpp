#include "sending/TimeTexts.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>

namespace {

constexpr qint32 SecondsPerMinute = 60;
constexpr qint32 SecondsPerHour = 3600;

QString twoDigits(qint32 number)
{
    const QString digits = QString::number(std::abs(number)).rightJustified(2, u'0');
    return number < 0 ? u'-' + digits : digits;
}

template <typename Narrow>
std::optional<Narrow> narrowed(qint64 value)
{
    if (value < std::numeric_limits<Narrow>::min() || value > std::numeric_limits<Narrow>::max())
        return std::nullopt;
    return static_cast<Narrow>(value);
}

} // namespace

QString durationText(qint32 seconds)
{
    const QString tail = u':' + twoDigits(seconds % SecondsPerMinute);
    if (seconds <= SecondsPerHour)
        return twoDigits(seconds / SecondsPerMinute) + tail;
    return QString::number(seconds / SecondsPerHour) + u':' +
           twoDigits(seconds % SecondsPerHour / SecondsPerMinute) + tail;
}

QString countdownText(qint32 seconds)
{
    const qint32 minutes = seconds / SecondsPerMinute;
    if (minutes < 1)
        return QString::number(seconds) + QCoreApplication::translate("Pacing", " seconds...");
    return QString::number(minutes) + QCoreApplication::translate("Pacing", " minutes...");
}

std::optional<qint32> remainingSeconds(const RunProgress &progress)
{
    if (progress.packetSize == 0)
        return std::nullopt;
    const auto sum = narrowed<qint16>(qint64{progress.packetSize} + progress.recipientsLeft);
    const auto sending =
        narrowed<qint16>(qint64{progress.messageSeconds} * progress.recipientsLeft);
    const auto delay = narrowed<qint16>(qint64{progress.delayMinutes} * SecondsPerMinute);
    if (!sum || !sending || !delay)
        return std::nullopt;
    const auto numerator = narrowed<qint32>(qint64{*sum} - progress.packetRoomLeft - 1);
    if (!numerator)
        return std::nullopt;
    const qint32 waits = *numerator / progress.packetSize;
    const auto waiting = narrowed<qint32>(qint64{waits} * progress.delayMinutes * SecondsPerMinute);
    if (!waiting)
        return std::nullopt;
    return narrowed<qint32>(qint64{*waiting} + *sending -
                            (qint64{*delay} - progress.secondsToPacket));
}

QString secondsText(quint32 milliseconds, QChar decimalSign)
{
    constexpr double MillisecondsPerSecond = 1000.0;
    constexpr int EveryDigit = 10;
    return QString::number(milliseconds / MillisecondsPerSecond, 'g', EveryDigit)
        .replace(u'.', decimalSign);
}

std::optional<qint16> roundedSeconds(const QString &text, QChar decimalSign)
{
    bool isNumber = false;
    const double seconds = QString(text).replace(decimalSign, u'.').toDouble(&isNumber);
    // std::nearbyint rounds halves to even in the default rounding mode.
    const double rounded = std::nearbyint(seconds);
    if (!isNumber || !(std::abs(rounded) <= std::numeric_limits<qint16>::max()))
        return std::nullopt;
    return static_cast<qint16>(rounded);
}
