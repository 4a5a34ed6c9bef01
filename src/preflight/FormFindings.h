#pragma once

#include "form/Form.h"
#include "preflight/Finding.h"
#include "smtp/ServerAddress.h"

#include <QList>

#include <tl/expected.hpp>

/// What the form's fields alone give away: what Start refuses (in a pause, what Resume refuses), a
/// server that cannot be reached by what is written, addresses and a subject that do harm.
[[nodiscard]] QList<Finding> findingsInForm(const Form &form, int recipientCount,
                                            const tl::expected<ServerAddress, QString> &server);

/// Whether it shouts: several words, and no small letter among them. Spam filters hold that
/// against a message.
[[nodiscard]] bool isInCapitalsOnly(const QString &subject);
