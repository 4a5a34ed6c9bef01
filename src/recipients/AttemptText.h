#pragma once

#include "recipients/Recipient.h"

#include <QCoreApplication>

/// What became of the last message to a row, in words.
class AttemptText
{
    Q_DECLARE_TR_FUNCTIONS(AttemptText)

public:
    /// What the state does not say: the server's reply, why nobody knows, or what became of a
    /// message of an earlier run; on one line, empty when there is no more to say.
    [[nodiscard]] static QString besideState(const Recipient &row);
    /// The same as a whole, for who reads about this row alone; without the reply.
    [[nodiscard]] static QString outcome(const Recipient &row);

private:
    [[nodiscard]] static QString inDoubt();
    [[nodiscard]] static QString before(Outcome outcome);
};
