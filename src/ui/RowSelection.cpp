#include "ui/RowSelection.h"

#include <QItemSelectionModel>

#include <algorithm>

std::vector<int> selectedRows(const QItemSelectionModel &selection)
{
    // The ranges, not the rows one by one: those take seconds when many are scattered.
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row + 1);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void selectRows(QItemSelectionModel &selection, const std::vector<int> &rows)
{
    const QAbstractItemModel &model = *selection.model();
    const int lastColumn = model.columnCount() - 1;
    QItemSelection ranges;
    for (auto first = rows.begin(); first != rows.end();) {
        auto last = first;
        while (std::next(last) != rows.end() && *std::next(last) == *last + 1)
            ++last;
        ranges.append(
            QItemSelectionRange(model.index(*first - 1, 0), model.index(*last - 1, lastColumn)));
        first = std::next(last);
    }
    // First none, then these: going over in one step compares every old range with every new one.
    selection.clearSelection();
    selection.select(ranges, QItemSelectionModel::Select);
}
