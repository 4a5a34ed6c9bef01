#include "recipients/RecipientList.h"

#include <algorithm>

RecipientList::RecipientList(const QLocale &locale, QObject *parent)
    : QObject(parent), m_collation(locale)
{}

int RecipientList::positionOf(quint64 id, int hint) const
{
    if (hint >= 1 && hint <= count() && at(hint).id == id)
        return hint;
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [id](const Recipient &row) { return row.id == id; });
    return found == m_rows.end() ? 0 : static_cast<int>(found - m_rows.begin()) + 1;
}

std::vector<int>
RecipientList::positionsWhere(const std::function<bool(const Recipient &row)> &isMeant) const
{
    std::vector<int> positions;
    int position = 0;
    for (const Recipient &row : m_rows) {
        ++position;
        if (isMeant(row))
            positions.push_back(position);
    }
    return positions;
}

int RecipientList::checkedFrom(int position) const
{
    const int first = std::clamp(position, 1, count() + 1);
    return static_cast<int>(std::count_if(m_rows.begin() + (first - 1), m_rows.end(),
                                          [](const Recipient &row) { return row.checked; }));
}

quint64 RecipientList::append(Recipient row)
{
    appendAll({std::move(row)});
    return m_lastId;
}

void RecipientList::appendAll(std::vector<Recipient> rows)
{
    for (Recipient &row : rows) {
        row.id = ++m_lastId;
        m_rows.push_back(std::move(row));
    }
    Q_EMIT rowsChanged();
}

void RecipientList::replaceAll(std::vector<Recipient> rows)
{
    m_rows = std::move(rows);
    for (Recipient &row : m_rows)
        row.id = ++m_lastId;
    m_sortColumn = Column::Number;
    m_sortOrder = Qt::AscendingOrder;
    m_currentRow = 0;
    m_rowInView = 0;
    Q_EMIT rowsChanged();
}

void RecipientList::remove(const std::vector<int> &positions)
{
    auto next = positions.begin();
    int position = 0;
    std::erase_if(m_rows, [&](const Recipient &) {
        ++position;
        const bool chosen = next != positions.end() && *next == position;
        if (chosen)
            ++next;
        return chosen;
    });
    m_currentRow = 0;
    m_rowInView = 0;
    Q_EMIT rowsChanged();
}

void RecipientList::renumber()
{
    int number = 0;
    for (Recipient &row : m_rows)
        row.number = QString::number(++number);
    Q_EMIT rowsChanged();
}

void RecipientList::setState(int position, const QString &state)
{
    m_rows[index(position)].state = state;
    Q_EMIT rowChanged(position);
}

void RecipientList::setAttempt(int position, const Attempt &attempt)
{
    m_rows[index(position)].attempt = attempt;
    Q_EMIT rowChanged(position);
}

void RecipientList::setCheckedWithImage(int position, bool checked, qint16 imageIndex)
{
    Recipient &row = m_rows[index(position)];
    row.checked = checked;
    row.imageIndex = imageIndex;
    Q_EMIT rowChanged(position);
}

const QString &RecipientList::textOf(const Recipient &row, Column column)
{
    switch (column) {
    case Column::Number:
        return row.number;
    case Column::Name:
        return row.name;
    case Column::Address:
        return row.address;
    case Column::State:
        break;
    }
    return row.state;
}

void RecipientList::sort(Column column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    const auto textAt = [&](std::size_t place) -> const QString & {
        return textOf(m_rows[place], column);
    };
    const std::vector<std::size_t> places = m_collation.sorted(m_rows.size(), textAt, order);
    std::vector<Recipient> sorted;
    sorted.reserve(m_rows.size());
    for (const std::size_t place : places)
        sorted.push_back(std::move(m_rows[place]));
    m_rows = std::move(sorted);
    Q_EMIT rowsChanged();
}

void RecipientList::makeCurrent(int position)
{
    m_currentRow = position;
    m_rowInView = position;
}
