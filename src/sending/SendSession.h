#pragma once

#include "form/Form.h"
#include "recipients/RecipientList.h"

#include <QString>

#include <vector>

/// Where a run stands.
struct SendSession
{
    qint32 secondsToNextPacket = 0;
    qint32 nextRecipientIndex = 1; ///< the row from which the next checked one is looked for
    qint32 packetMessagesLeft = 0; ///< room left in the packet, in recipients
    qint32 recipientsLeft = 0;     ///< checked recipients not yet finished
    quint32 messageStartTick = 0;  ///< when the message in flight was handed over
};

/// The message handed to the client and not yet settled. Its result concerns these rows and no
/// others, wherever the cursor and the project are by then.
struct MessageInFlight
{
    struct Row
    {
        quint64 id = 0;
        int position = 0; ///< where it was at hand-over
        QString address;
        QString number;
    };

    std::vector<Row> rows;
    QString subject;
    QString identifier; ///< as in the Message-ID
    Situation situation;
};

/// How a message in flight ended, for whoever waited for it.
struct SettledMessage
{
    struct Row
    {
        quint64 id = 0;
        QString state;
    };

    std::vector<Row> rows;
    bool finished = true; ///< false when the rows are still to be sent: the server never took it
};

/// The row at which a run goes on after a message whose last row was at that position: the next
/// one, past unchecked rows, but never past the last row when that is unchecked.
[[nodiscard]] int positionAfter(const std::vector<Recipient> &rows, int lastPosition);
