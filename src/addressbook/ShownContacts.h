#pragma once

#include "addressbook/Contact.h"
#include "base/Collation.h"

#include <optional>

/// Which contacts of a book a list shows, and in which order: those in which everything that is
/// looked for is found, in the order of the file until a heading is clicked.
class ShownContacts
{
public:
    /// Sorts as readers of that locale do.
    explicit ShownContacts(const QLocale &locale = QLocale::system());

    /// The contacts have changed.
    void setContacts(const ContactTable &contactTable);
    /// Shows the contacts that hold each of these words in name, company or address, ignoring case.
    void find(const QString &words);
    /// Sorts by that column; a second time in a row the other way round.
    void columnClick(const ContactTable &contactTable, ContactColumn column);

    /// The rows of the table that are shown, counted from 1.
    [[nodiscard]] const std::vector<int> &rows() const { return m_rows; }
    /// Whether the contact of that row of the table is among them.
    [[nodiscard]] bool shows(int row) const;
    /// Nothing: the order of the file.
    [[nodiscard]] std::optional<ContactColumn> sortColumn() const { return m_sortColumn; }
    [[nodiscard]] Qt::SortOrder sortOrder() const { return m_sortOrder; }

private:
    void sort(const ContactTable &contactTable);
    [[nodiscard]] bool isFound(int row) const;
    void choose();

    Collation m_collation;
    std::vector<int> m_sorted;         ///< all rows
    std::vector<QString> m_searchable; ///< what is searched of each row, folded
    QStringList m_words;               ///< folded
    std::vector<int> m_rows;
    std::optional<ContactColumn> m_sortColumn;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
