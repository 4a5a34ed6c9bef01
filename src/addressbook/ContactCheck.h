#pragma once

#include "addressbook/Contact.h"
#include "base/Language.h"
#include "prompts/Prompts.h"

#include <optional>

/// Why the contact editor does not take a contact: it needs a name or a company, and a valid
/// address. Nothing is trimmed: a name of blanks is a name. The box is in that language.
[[nodiscard]] std::optional<Notice> refusalOf(const Contact &contact, Language language);
