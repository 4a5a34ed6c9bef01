#pragma once

#include "form/Form.h"
#include "preflight/Finding.h"
#include "recipients/RecipientList.h"

#include <QList>

/// What is wrong with the checked rows: who would get the message twice or again, who cannot get
/// it, and, when the message uses names, who has none.
[[nodiscard]] QList<Finding> findingsInRows(const Form &form, const RecipientList &recipients,
                                            bool usesNames);
