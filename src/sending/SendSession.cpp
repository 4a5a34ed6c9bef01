#include "sending/SendSession.h"

int positionAfter(const std::vector<Recipient> &rows, int lastPosition)
{
    const int count = static_cast<int>(rows.size());
    int position = lastPosition + 1;
    while (position < count && !rows[static_cast<std::size_t>(position - 1)].checked)
        ++position;
    return position;
}
