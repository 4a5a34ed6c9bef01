#pragma once

#include <QCollator>
#include <QString>

#include <functional>
#include <vector>

/// Sorts texts as the readers of a language do, ignoring case.
class Collation
{
public:
    explicit Collation(const QLocale &locale);

    /// The places 0 to count - 1 in the order of their texts; those of equal texts stay as they
    /// are.
    [[nodiscard]] std::vector<std::size_t>
    sorted(std::size_t count, const std::function<const QString &(std::size_t place)> &textAt,
           Qt::SortOrder order) const;

private:
    QCollator m_collator;
};
