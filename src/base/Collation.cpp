#include "base/Collation.h"

#include <algorithm>
#include <numeric>

Collation::Collation(const QLocale &locale) : m_collator(locale)
{
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

std::vector<std::size_t>
Collation::sorted(std::size_t count, const std::function<const QString &(std::size_t)> &textAt,
                  Qt::SortOrder order) const
{
    // One key a text: comparing the texts themselves would collate each of them many times over.
    // They are folded because the plain locale's keys do not ignore case.
    std::vector<QCollatorSortKey> keys;
    keys.reserve(count);
    for (std::size_t place = 0; place < count; ++place)
        keys.push_back(m_collator.sortKey(textAt(place).toCaseFolded()));
    std::vector<std::size_t> places(count);
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::stable_sort(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
        const int comparison = keys[a].compare(keys[b]);
        return order == Qt::AscendingOrder ? comparison < 0 : comparison > 0;
    });
    return places;
}
