#pragma once

#include "base/CodePage.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QStringList>

#include <optional>
#include <vector>

/// Walks the lines of vCards with their folds undone (RFC 6350 section 3.2). On bytes, because a
/// fold may part the bytes of one character.
class VCardLines
{
public:
    explicit VCardLines(QByteArrayView content) : m_rest(content) {}

    /// The next line; nothing when the file is used up.
    [[nodiscard]] std::optional<QByteArray> next();

private:
    [[nodiscard]] QByteArrayView nextUnfolded();

    QByteArrayView m_rest;
};

/// One line of a vCard: "item1.TEL;TYPE=cell,voice:+39 333 1234567".
class VCardProperty
{
public:
    /// What a line without a colon says is nothing: it has neither name nor value.
    explicit VCardProperty(const QByteArray &line);

    /// In capitals, without the group.
    [[nodiscard]] const QByteArray &name() const { return m_name; }
    /// Whether it is a line with a text that says nothing: one of a note whose folds are missing.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }
    /// Whether this is "BEGIN:VCARD" or "END:VCARD", for the name in capitals.
    [[nodiscard]] bool delimitsCard(QByteArrayView name) const;
    /// Whether there is more than separators.
    [[nodiscard]] bool hasContent() const;
    /// Whether the parameter has that value among others. Both are in capitals. The 2.1 format
    /// leaves the names of parameters out.
    [[nodiscard]] bool has(QByteArrayView parameter, QByteArrayView value) const;
    /// From 1, the most preferred, to 100 (RFC 6350 section 5.3); above that without preference.
    [[nodiscard]] int preference() const;

    /// The value in plain text.
    [[nodiscard]] QString text(const CodePage &codePage) const;
    /// The values between the separators ";", each in plain text.
    [[nodiscard]] QStringList components(const CodePage &codePage) const;

private:
    struct Parameter
    {
        QByteArray name;
        QByteArrayList values;
    };

    [[nodiscard]] QByteArray firstValue(QByteArrayView parameter) const;
    [[nodiscard]] QByteArray decodedBytes() const;
    [[nodiscard]] QString escapedText(const CodePage &codePage) const;

    bool m_isBroken = false;
    QByteArray m_name;
    std::vector<Parameter> m_parameters;
    QByteArray m_value;
};
