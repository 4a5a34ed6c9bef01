#include "ui/BookItems.h"

namespace {

bool shows(const QTreeWidget &list, const std::vector<AddressBook> &books)
{
    if (list.topLevelItemCount() != static_cast<int>(books.size()))
        return false;
    int place = 0;
    for (const AddressBook &book : books) {
        const QTreeWidgetItem &item = *list.topLevelItem(place++);
        if (item.text(0) != book.name || fileOf(item) != book.file)
            return false;
    }
    return true;
}

} // namespace

void showBooks(QTreeWidget &list, const std::vector<AddressBook> &books, int selected)
{
    // The click on a book leads here, and wants to find it again.
    if (!shows(list, books)) {
        list.clear();
        for (const AddressBook &book : books) {
            auto *const item = new QTreeWidgetItem(&list, {book.name});
            item->setData(0, Qt::UserRole, book.file);
            item->setToolTip(0, book.file);
        }
    }
    list.setCurrentItem(list.topLevelItem(selected));
}

QString fileOf(const QTreeWidgetItem &book)
{
    return book.data(0, Qt::UserRole).toString();
}
