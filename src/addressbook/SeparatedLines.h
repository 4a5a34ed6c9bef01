#pragma once

#include "addressbook/ForeignContact.h"

#include <vector>

/// Reads lines of fields separated by ";" in the order of a book file, with as few or as many
/// quotes as a book or a spreadsheet writes (RFC 4180). The notes, the last field, take the rest of
/// their line. Lines without any text are passed over.
[[nodiscard]] std::vector<ForeignContact> readSeparatedLines(QStringView text);
