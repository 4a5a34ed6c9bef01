#include "recipients/Totals.h"

void Totals::count(const Recipient &row)
{
    ++rows;
    switch (stateOf(row)) {
    case RowState::Waiting:
        ++waiting;
        break;
    case RowState::Sending:
        ++inDoubt;
        break;
    case RowState::Sent:
        ++sent;
        break;
    case RowState::NotSent:
        ++notSent;
        break;
    case RowState::Error:
        ++refused;
        refusedForNow += isRefusedForNow(row) ? 1 : 0;
        break;
    }
}

namespace {

template <typename Condition>
Totals totalsWhere(const std::vector<Recipient> &rows, Condition counts)
{
    Totals totals;
    for (const Recipient &row : rows) {
        if (counts(row))
            totals.count(row);
    }
    return totals;
}

} // namespace

Totals totalsOf(const std::vector<Recipient> &rows)
{
    return totalsWhere(rows, [](const Recipient &) { return true; });
}

Totals totalsOfChecked(const std::vector<Recipient> &rows)
{
    return totalsWhere(rows, [](const Recipient &row) { return row.checked; });
}

Totals totalsOfMeant(const std::vector<Recipient> &rows)
{
    return totalsWhere(rows, [](const Recipient &row) {
        return row.checked || mayHaveTheMessage(row) || stateOf(row) == RowState::Error;
    });
}
