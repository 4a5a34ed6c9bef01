#pragma once

#include "form/Form.h"
#include "prompts/Prompts.h"

#include <optional>

/// Why a run cannot start with what the form holds: the box of the first rule that is broken, or
/// nothing. Looks at no files.
[[nodiscard]] std::optional<Notice> refusalOfStart(const Form &form, int recipientCount);

/// The part of these rules that a paused run has to keep to when it goes on: the numbers of
/// messages per packet and of minutes between packets.
[[nodiscard]] std::optional<Notice> refusalOfPacketNumbers(const Form &form);

/// The path of a message file that does not exist; looks at the disk.
[[nodiscard]] std::optional<QString> missingMessageFile(const Form &form);

/// The delay between packets in seconds; nothing when it is no number, negative or too large.
[[nodiscard]] std::optional<qint32> delaySeconds(const Form &form);
