#pragma once

#include "recipients/Recipient.h"

#include <vector>

/// How many rows are in each state. Every row counts once: the first five add up to `rows`.
struct Totals
{
    int rows = 0;
    int sent = 0;
    int refused = 0; ///< for now or for good
    int inDoubt = 0; ///< in flight, or broken off before the server answered
    int waiting = 0; ///< also rows whose state is none of the program's words
    int notSent = 0;

    int refusedForNow = 0; ///< those among the refused

    void count(const Recipient &row);
    /// Whether it is known of everybody that they got the message or did not.
    [[nodiscard]] bool isAccountedFor() const { return inDoubt == 0 && waiting == 0; }

    bool operator==(const Totals &) const = default;
};

[[nodiscard]] Totals totalsOf(const std::vector<Recipient> &rows);
/// Of the checked rows alone: those whom a run means.
[[nodiscard]] Totals totalsOfChecked(const std::vector<Recipient> &rows);
/// Of the checked rows, and of those that a run has come to, whatever their check marks are by now:
/// nobody who got the message, or may have it, is lost from sight by being unchecked.
[[nodiscard]] Totals totalsOfMeant(const std::vector<Recipient> &rows);
