#pragma once

#include <vector>

class QItemSelectionModel;

/// The selected rows of a table, from 1 and ascending.
[[nodiscard]] std::vector<int> selectedRows(const QItemSelectionModel &selection);

/// Selects these rows, from 1 and ascending, and no others.
void selectRows(QItemSelectionModel &selection, const std::vector<int> &rows);
