#pragma once

#include "form/Form.h"
#include "prompts/Prompts.h"

#include <QList>

#include <optional>

/// A rule of Start that is broken.
struct Refusal
{
    Notice box;      ///< what Start shows
    QString text;    ///< the rule's own words, also where several rules share a box
    Control control; ///< where it is put right
};

/// Why a run cannot start with what the form holds, in the order of the rules; Start shows the box
/// of the first. Looks at no files.
[[nodiscard]] QList<Refusal> refusalsOfStart(const Form &form, int recipientCount);

/// The part of these rules that a paused run has to keep to when it goes on: the numbers of
/// messages per packet and of minutes between packets.
[[nodiscard]] std::optional<Refusal> refusalOfPacketNumbers(const Form &form);

/// The path of a message file that does not exist; looks at the disk.
[[nodiscard]] std::optional<QString> missingMessageFile(const Form &form);

/// The delay between packets in seconds; nothing when it is no number, negative or too large.
[[nodiscard]] std::optional<qint32> delaySeconds(const Form &form);
