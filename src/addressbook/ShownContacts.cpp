#include "addressbook/ShownContacts.h"

#include <algorithm>
#include <iterator>
#include <numeric>

ShownContacts::ShownContacts(const QLocale &locale) : m_collation(locale) {}

void ShownContacts::setContacts(const ContactTable &contactTable)
{
    m_searchable.clear();
    m_searchable.reserve(contactTable.size());
    for (const Contact &contact : contactTable) {
        // No word reaches over from one to the next.
        const QString all = contact[ContactColumn::DisplayName] + u'\n' +
                            contact[ContactColumn::Name] + u'\n' + contact[ContactColumn::Company] +
                            u'\n' + contact[ContactColumn::Email];
        m_searchable.push_back(all.toCaseFolded());
    }
    sort(contactTable);
}

void ShownContacts::find(const QString &words)
{
    m_words = words.toCaseFolded().simplified().split(u' ', Qt::SkipEmptyParts);
    choose();
}

void ShownContacts::columnClick(const ContactTable &contactTable, ContactColumn column)
{
    const bool again = m_sortColumn == column && m_sortOrder == Qt::AscendingOrder;
    m_sortColumn = column;
    m_sortOrder = again ? Qt::DescendingOrder : Qt::AscendingOrder;
    sort(contactTable);
}

bool ShownContacts::shows(int row) const
{
    return std::find(m_rows.begin(), m_rows.end(), row) != m_rows.end();
}

void ShownContacts::sort(const ContactTable &contactTable)
{
    m_sorted.resize(contactTable.size());
    std::iota(m_sorted.begin(), m_sorted.end(), 1);
    if (m_sortColumn) {
        const auto textAt = [&](std::size_t place) -> const QString & {
            return contactTable[place][*m_sortColumn];
        };
        const auto places = m_collation.sorted(contactTable.size(), textAt, m_sortOrder);
        std::transform(places.begin(), places.end(), m_sorted.begin(),
                       [](std::size_t place) { return static_cast<int>(place) + 1; });
    }
    choose();
}

bool ShownContacts::isFound(int row) const
{
    const QString &searchable = m_searchable[static_cast<std::size_t>(row - 1)];
    return std::all_of(m_words.begin(), m_words.end(),
                       [&](const QString &word) { return searchable.contains(word); });
}

void ShownContacts::choose()
{
    m_rows.clear();
    std::copy_if(m_sorted.begin(), m_sorted.end(), std::back_inserter(m_rows),
                 [this](int row) { return isFound(row); });
}
