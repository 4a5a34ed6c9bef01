#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// Reads comma-delimited input. A field skips its leading spaces; when it begins with a double
/// quote it runs to the next one (both dropped, over line ends if need be) and what follows up to
/// the comma or line end is dropped; any other field runs to the first comma or to the line end.
/// Reading goes on behind that comma or line end.
class InputFields
{
public:
    explicit InputFields(QStringView text) : m_rest(text) {}

    [[nodiscard]] bool atEnd() const { return m_rest.isEmpty(); }
    /// The next field; nothing at the end of the text or when a quote is never closed.
    [[nodiscard]] std::optional<QString> field();
    /// Everything up to the line end, unchanged; nothing at the end of the text.
    [[nodiscard]] std::optional<QString> wholeLine();
    /// Whether the field or line last read was ended by the end of the text alone.
    [[nodiscard]] bool lastWasCut() const { return m_cut; }

private:
    QStringView takeUntil(bool stopsAtComma);

    QStringView m_rest;
    bool m_cut = false;
};
