#pragma once

#include <QByteArray>
#include <QString>

// The encodings of MIME (RFC 2045, 2047, 2231) on single values. Whatever goes in, a header line
// that comes out is one header line.

/// The text with every control character (RFC 5322 knows none in a header's value) made a blank.
[[nodiscard]] QString withoutControls(const QString &text);

/// "Name: text", folded; encoded words only where the text needs them.
[[nodiscard]] QByteArray textHeader(const QByteArray &name, const QString &text);

/// "Name: display name <address>", or only the address when the display name is empty.
[[nodiscard]] QByteArray mailboxHeader(const QByteArray &name, const QString &displayName,
                                       const QByteArray &address);

/// The header lines of a file: Content-Type, Content-Disposition, Content-Transfer-Encoding.
/// `type` such as "image/png", `disposition` "attachment" or "inline".
[[nodiscard]] QByteArray fileHeaders(const QByteArray &type, const QByteArray &disposition,
                                     const QString &fileName);

/// UTF-8 text with LF line ends as quoted-printable lines.
[[nodiscard]] QByteArray quotedPrintable(const QByteArray &text);

/// The bytes as base64 lines.
[[nodiscard]] QByteArray base64Lines(const QByteArray &bytes);
