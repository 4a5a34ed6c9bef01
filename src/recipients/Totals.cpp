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

Totals totalsOf(const std::vector<Recipient> &rows)
{
    Totals totals;
    for (const Recipient &row : rows)
        totals.count(row);
    return totals;
}

Totals totalsOfChecked(const std::vector<Recipient> &rows)
{
    Totals totals;
    for (const Recipient &row : rows) {
        if (row.checked)
            totals.count(row);
    }
    return totals;
}
