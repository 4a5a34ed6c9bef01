#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <array>

/// The single-byte encoding of the files that the program writes, and the rule by which a text
/// that it cannot hold is written as UTF-8 instead. Whatever encode wrote, decode reads back as the
/// same text.
class CodePage
{
public:
    /// The code page of that name, as "windows-1252". A name the system does not know gives
    /// windows-1252.
    explicit CodePage(const QByteArray &name);

    /// The Windows code page of the user's locale; windows-1252 for every locale without one.
    [[nodiscard]] static CodePage ofSystem();

    [[nodiscard]] QByteArray name() const { return m_name; }

    /// In the code page when every character has a place in it and the bytes would not read as
    /// UTF-8, else in UTF-8.
    [[nodiscard]] QByteArray encode(const QString &text) const;

    /// As UTF-8 when the bytes begin with its byte-order mark (dropped) or hold a multi-byte
    /// sequence and are valid throughout, else in the code page.
    [[nodiscard]] QString decode(QByteArrayView bytes) const;

private:
    static constexpr int FirstHigh = 0x80;

    QByteArray m_name;
    std::array<char16_t, 256 - FirstHigh> m_toUnicode{};
    QHash<char16_t, char> m_fromUnicode;
};

/// Whether the bytes are UTF-8 that says so: a byte-order mark, or at least one multi-byte sequence
/// and nothing invalid.
[[nodiscard]] bool readsAsUtf8(QByteArrayView bytes);

/// Whether the bytes say that they are UTF-8 by a byte-order mark, and are not: what they hold
/// cannot be read without a loss.
[[nodiscard]] bool isBrokenUtf8(QByteArrayView bytes);
