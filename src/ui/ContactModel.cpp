#include "ui/ContactModel.h"

#include <array>
#include <unordered_set>

namespace {

constexpr std::array Columns{ContactColumn::DisplayName, ContactColumn::Email};

} // namespace

ContactModel::ContactModel(const AddressBooks &books, QObject *parent)
    : QAbstractTableModel(parent), m_books(books)
{
    connect(&books, &AddressBooks::contactsAboutToChange, this, [this] { beginResetModel(); });
    connect(&books, &AddressBooks::contactsChanged, this, [this] {
        m_shown.setContacts(m_books.contactTable());
        endResetModel();
    });
}

void ContactModel::find(const QString &words)
{
    beginResetModel();
    m_shown.find(words);
    endResetModel();
}

void ContactModel::columnClick(int column)
{
    beginResetModel();
    m_shown.columnClick(m_books.contactTable(), Columns[static_cast<std::size_t>(column)]);
    endResetModel();
}

std::vector<int> ContactModel::placesOf(const std::vector<int> &rows) const
{
    const std::unordered_set<int> wanted(rows.begin(), rows.end());
    std::vector<int> places;
    for (int place = 1; place <= rowCount(); ++place) {
        if (wanted.contains(rowAt(place)))
            places.push_back(place);
    }
    return places;
}

int ContactModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.rows().size());
}

int ContactModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(Columns.size());
}

QVariant ContactModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int row = rowAt(index.row() + 1);
    if (role == Qt::DisplayRole)
        return contact(row)[Columns[static_cast<std::size_t>(index.column())]];
    if (role == KeyRole)
        return QString(u'i' + QString::number(row));
    return {};
}

QVariant ContactModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? tr("Name") : tr("E-Mail Address");
}
