#pragma once

#include "addressbook/AddressBooks.h"
#include "addressbook/ShownContacts.h"

#include <QAbstractTableModel>

/// The contacts of the open book as a table of names and addresses, as far as they are found and in
/// the order that was asked for.
class ContactModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The key of a contact: "i" and its row in contactTable.
    static constexpr int KeyRole = Qt::UserRole;

    explicit ContactModel(const AddressBooks &books, QObject *parent = nullptr);

    void find(const QString &words);
    /// A click on the heading of that column, from 0.
    void columnClick(int column);
    [[nodiscard]] const ShownContacts &shown() const { return m_shown; }
    void translateHeadings() { Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1); }

    /// The row of contactTable, from 1, that stands at that place, from 1.
    [[nodiscard]] int rowAt(int place) const
    {
        return m_shown.rows()[static_cast<std::size_t>(place - 1)];
    }
    /// The places, from 1 and ascending, at which these rows are shown.
    [[nodiscard]] std::vector<int> placesOf(const std::vector<int> &rows) const;
    [[nodiscard]] const Contact &contact(int row) const
    {
        return m_books.contactTable()[static_cast<std::size_t>(row - 1)];
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    const AddressBooks &m_books;
    ShownContacts m_shown;
};
