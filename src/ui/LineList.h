#pragma once

#include <QListWidget>

/// One line of such a list.
struct ShownLine
{
    const char *picture = nullptr; ///< its sign, one of the program's pictures
    QString text;
    QString spoken; ///< the text with the sign as a word, for who cannot see it

    bool operator==(const ShownLine &) const = default;
};

/// A list of lines that are read: each has a sign, is wrapped, and can be copied.
class LineList : public QListWidget
{
    Q_OBJECT

public:
    explicit LineList(QWidget *parent = nullptr);

    /// Shows these lines. A line that stands where it stood stays selected.
    void setLines(const QList<ShownLine> &lines);
    /// As they were given.
    [[nodiscard]] const QList<ShownLine> &lines() const { return m_lines; }
    /// The selected lines, from top to bottom.
    [[nodiscard]] QString selectedText() const;

private:
    QList<ShownLine> m_lines;
};
