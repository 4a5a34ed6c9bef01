#pragma once

#include "addressbook/ForeignContact.h"
#include "base/CodePage.h"

#include <vector>

/// Whether the first line with any text begins a vCard.
[[nodiscard]] bool isVCard(QByteArrayView content);

/// Reads each card of a file of vCards: versions 2.1, 3.0 (RFC 2426) and 4.0 (RFC 6350). Values
/// that do not say their character set are in UTF-8 or in the code page. What stands outside of
/// cards is passed over.
[[nodiscard]] std::vector<ForeignContact> readVCards(QByteArrayView content,
                                                     const CodePage &codePage);
