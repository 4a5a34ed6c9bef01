#pragma once

#include "base/ServerReply.h"

#include <QMetaType>
#include <QString>

/// What is known about a message that was handed over for a row.
enum class Outcome {
    None,     ///< none was handed over
    InFlight, ///< it is with the client now
    Sent,     ///< the server accepted it
    Refused,  ///< the server refused it, or nobody could be given it
    NotTaken, ///< it certainly did not reach the server's hands: it can be sent again
    InDoubt,  ///< the connection ended before the server answered
};

/// The last message handed over for a row: what became of it, and what the server said. Kept until
/// the project is replaced, whatever runs come after it.
struct Attempt
{
    Outcome outcome = Outcome::None;
    ServerReply reply;
    qint64 time = 0;    ///< when it was settled, or else handed over; milliseconds since 1970 UTC
    int tries = 0;      ///< how many messages were handed over for the row
    QString identifier; ///< the message's, as in its Message-ID

    [[nodiscard]] bool isEmpty() const { return tries == 0; }

    bool operator==(const Attempt &) const = default;
};
