#pragma once

#include <QString>
#include <QStringView>

#include <limits>
#include <optional>

/// The whole number that a text is: blanks, a sign, digits, blanks; nothing else, and within the
/// range given.
[[nodiscard]] std::optional<qint64> wholeNumber(QStringView text, qint64 lowest, qint64 highest);

/// The same for the range of a type, as toNumber<qint16>(text).
template <typename T>
[[nodiscard]] std::optional<T> toNumber(QStringView text)
{
    const auto number =
        wholeNumber(text, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
    return number ? std::optional<T>(static_cast<T>(*number)) : std::nullopt;
}

/// The number at the beginning of a text (blanks and a sign may precede it), else 0. A number
/// beyond 32 bits becomes the nearest that fits.
[[nodiscard]] qint32 leadingNumber(QStringView text);

/// A whole number as files hold it: a blank in the place of the sign unless it is negative, and a
/// blank behind, as " 1 ".
[[nodiscard]] QString fileNumber(qint64 number);
