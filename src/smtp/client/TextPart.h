#pragma once

#include <QByteArray>
#include <QString>

/// A text of the message in its encoded form, kept while the text is the same.
class TextPart
{
public:
    /// `subtype`: "plain" or "html".
    explicit TextPart(const QByteArray &subtype) : m_subtype(subtype) {}

    /// Encodes the text unless it is the present one: as it is when it is ASCII with short lines,
    /// else as quoted-printable.
    void setText(const QString &text);

    [[nodiscard]] const QString &text() const { return m_text; }
    /// The header lines and the blank line after them.
    [[nodiscard]] const QByteArray &headers() const { return m_headers; }
    /// Lines ended by CR LF; the last one is ended only when the text ends in a line end.
    [[nodiscard]] const QByteArray &body() const { return m_body; }

private:
    const QByteArray m_subtype;
    QString m_text;
    QByteArray m_headers; ///< empty before the first text
    QByteArray m_body;
};
