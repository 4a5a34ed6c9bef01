#pragma once

#include "base/Language.h"
#include "recipients/Attempt.h"

#include <QString>

#include <optional>

/// What became of a row. The words stand in project files in the language of the window that
/// wrote them, and are shown as they stand.
enum class RowState {
    Waiting,
    Sending,
    Sent,
    NotSent, ///< unchecked, and passed over
    Error,
};

[[nodiscard]] QString stateWord(RowState state, Language language);

/// The state of a row whose last message had that outcome.
[[nodiscard]] RowState stateAfter(Outcome outcome);

/// The state that a word of either language says; nothing for any other text.
[[nodiscard]] std::optional<RowState> stateOfWord(const QString &word);

/// Which picture a row shows. Checking by the check box moves the index down by one, unchecking
/// moves it up by one, whatever it was; files may hold any number.
namespace RowImage {
constexpr qint16 Checked = 2;
constexpr qint16 Unchecked = 3;
constexpr qint16 AddedByHand = 4;
} // namespace RowImage

/// One row of the recipient list.
struct Recipient
{
    quint64 id = 0; ///< what the row is known by however it moves; given by the list
    QString number; ///< the text of the column "N°"
    QString name;
    QString address;
    QString state;
    bool checked = true;
    qint16 imageIndex = RowImage::Checked;
    Attempt attempt; ///< the last message handed over for it
};

/// The state of the row. One whose text is none of the program's words is yet to be reached.
[[nodiscard]] RowState stateOf(const Recipient &row);

/// Whether the row got the message, or may have: it is "Sent", or "Sending..." since a session
/// broke off.
[[nodiscard]] bool mayHaveTheMessage(const Recipient &row);

/// Whether the server refused the row.
[[nodiscard]] bool isRefused(const Recipient &row);

/// Whether the row is "Sending..." and nothing is on its way any more.
[[nodiscard]] bool isInDoubt(const Recipient &row);

/// Whether the server refused the row with a reply that may be another one later (RFC 5321, section
/// 4.2.1: 4yz).
[[nodiscard]] bool isRefusedForNow(const Recipient &row);
