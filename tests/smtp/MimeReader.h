#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// A message or a part of one, taken apart with no help from the code that built it.
struct ReadPart
{
    /// Field names and unfolded values, in their order.
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body; ///< decoded; empty for a multipart
    QList<ReadPart> parts;

    /// The value of a field that stands there once; an empty one otherwise.
    [[nodiscard]] QByteArray header(const QByteArray &name) const;
    /// The media type and, in brackets, those of the parts: "multipart/mixed[text/plain text/html]"
    [[nodiscard]] QString outline() const;
};

/// Reads a message. What is wrong with it as a whole (bare CR or LF, long lines, bytes beyond
/// ASCII, a field twice, a boundary without an end) is appended to `problems`.
[[nodiscard]] ReadPart readMessage(const QByteArray &message, QStringList &problems);

/// Encoded words (RFC 2047) as text.
[[nodiscard]] QString decodedWords(const QByteArray &value);

/// A parameter of a header value, also in the forms of RFC 2231.
[[nodiscard]] QString parameter(const QByteArray &value, const QByteArray &name);
