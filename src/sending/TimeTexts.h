#pragma once

#include <QChar>
#include <QString>

#include <optional>

/// A number of seconds as minutes and seconds, above an hour as hours, minutes and seconds.
/// Negative parts keep their minus sign.
[[nodiscard]] QString durationText(qint32 seconds);

/// The countdown to the next packet: whole minutes from one minute on, else seconds. The plural
/// stands for every number.
[[nodiscard]] QString countdownText(qint32 seconds);

/// What the estimate of the remaining time is made of.
struct RunProgress
{
    qint16 packetSize = 0;      ///< N
    qint16 delayMinutes = 0;    ///< P
    qint16 recipientsLeft = 0;  ///< R
    qint32 packetRoomLeft = 0;  ///< L
    qint32 secondsToPacket = 0; ///< S
    qint16 messageSeconds = 0;  ///< D
};

/// The seconds that a run still needs. Some of its products are 16 bits wide: nothing when one of
/// them overflows, or when the packet size is 0.
[[nodiscard]] std::optional<qint32> remainingSeconds(const RunProgress &progress);

/// A duration of milliseconds as a decimal number of seconds.
[[nodiscard]] QString secondsText(quint32 milliseconds, QChar decimalSign);

/// That number rounded to 16 bits, halves to even; nothing when it is none or does not fit.
[[nodiscard]] std::optional<qint16> roundedSeconds(const QString &text, QChar decimalSign);
