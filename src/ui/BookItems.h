#pragma once

#include "addressbook/BookIndex.h"

#include <QTreeWidget>

/// Shows the books in a list, and selects the one at that place, from 0, if there is one.
void showBooks(QTreeWidget &list, const std::vector<AddressBook> &books, int selected);

/// The file of the book, its key.
[[nodiscard]] QString fileOf(const QTreeWidgetItem &book);
