#pragma once

#include "smtp/client/Content.h"
#include "smtp/client/MailAddress.h"

#include <tl/expected.hpp>

/// One message on its way: who sends it, to whom, and what.
struct Letter
{
    MailAddress sender;
    /// The recipients in the order in which they were given; a reason, in plain words, for those
    /// that cannot be written to.
    QList<tl::expected<MailAddress, QString>> recipients;
    Content content;
    /// A header line holds an address that is not ASCII before its "@".
    bool headersNeedSmtpUtf8 = false;
};
