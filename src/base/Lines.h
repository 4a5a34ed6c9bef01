#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// Walks a text line by line. A line ends at CR LF, LF or CR; the last may lack its end.
class LineReader
{
public:
    explicit LineReader(QStringView text) : m_rest(text) {}

    [[nodiscard]] bool atEnd() const { return m_rest.isEmpty(); }
    /// The next line without its end; nothing when the text is used up.
    [[nodiscard]] std::optional<QStringView> next();

private:
    QStringView m_rest;
};

/// The length of the line end at the start of the text: 2 for CR LF, 1 for CR or LF, else 0.
[[nodiscard]] int lineEndLength(QStringView text);

/// The text as one line: each line end becomes a blank. What is pasted into a box for one line may
/// hold several, and would tear the lines of a file apart.
[[nodiscard]] QString oneLine(QString text);

/// The text with its control characters made visible, as "\\x0d": what a stranger wrote cannot look
/// like several lines, hide, or drive a terminal.
[[nodiscard]] QString withVisibleControls(QStringView text);
