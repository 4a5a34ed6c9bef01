#pragma once

#include "base/Collation.h"
#include "recipients/Recipient.h"

#include <QObject>

#include <functional>
#include <vector>

/// The columns of the list by which it can be sorted.
enum class Column { Number, Name, Address, State };

/// The recipient list: rows addressed by position, 1-based as in the project file. It sorts when
/// rows are added and when it is told to, never because a state changes: the cursor of a run counts
/// positions.
class RecipientList : public QObject
{
    Q_OBJECT

public:
    /// Sorts by the collation of that locale.
    explicit RecipientList(const QLocale &locale = QLocale::system(), QObject *parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] const Recipient &at(int position) const { return m_rows[index(position)]; }
    [[nodiscard]] const std::vector<Recipient> &rows() const { return m_rows; }
    /// What a row shows in that column.
    [[nodiscard]] static const QString &textOf(const Recipient &row, Column column);
    /// Where the row with that identity is now; 0 when it is gone. Looks at the hint first.
    [[nodiscard]] int positionOf(quint64 id, int hint = 0) const;
    /// The positions of such rows, ascending.
    [[nodiscard]] std::vector<int>
    positionsWhere(const std::function<bool(const Recipient &row)> &isMeant) const;
    /// How many rows from that position on are checked.
    [[nodiscard]] int checkedFrom(int position) const;

    /// Puts a row at the end, unsorted, and returns its identity.
    quint64 append(Recipient row);
    /// Puts rows at the end, unsorted.
    void appendAll(std::vector<Recipient> rows);
    /// The rows in the place of all that were there, in their order; the sort column is "N°" again.
    void replaceAll(std::vector<Recipient> rows);
    void clear() { replaceAll({}); }
    /// Removes the rows at these positions (ascending).
    void remove(const std::vector<int> &positions);
    /// Numbers all rows by their position.
    void renumber();

    void setState(int position, const QString &state);
    void setAttempt(int position, const Attempt &attempt);
    void setCheckedWithImage(int position, bool checked, qint16 imageIndex);

    [[nodiscard]] Column sortColumn() const { return m_sortColumn; }
    [[nodiscard]] Qt::SortOrder sortOrder() const { return m_sortOrder; }
    /// Sorts stably by the column's texts, by the locale's collation and ignoring case.
    void sort(Column column, Qt::SortOrder order);

    /// The row last made current, and the row last asked to be seen; 0 for none.
    [[nodiscard]] int currentRow() const { return m_currentRow; }
    [[nodiscard]] int rowInView() const { return m_rowInView; }
    void makeCurrent(int position);
    void scrollTo(int position) { m_rowInView = position; }

Q_SIGNALS:
    /// Rows came, went or moved.
    void rowsChanged();
    /// State, attempt, check or picture of one row changed.
    void rowChanged(int position);

private:
    [[nodiscard]] static std::size_t index(int position)
    {
        return static_cast<std::size_t>(position - 1);
    }

    Collation m_collation;
    std::vector<Recipient> m_rows;
    quint64 m_lastId = 0;
    Column m_sortColumn = Column::Number;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    int m_currentRow = 0;
    int m_rowInView = 0;
};
