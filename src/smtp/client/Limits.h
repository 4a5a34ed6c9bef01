#pragma once

#include "base/ServerReply.h"

#include <chrono>

/// How long the client waits for the server and how much it reads of one reply.
struct Limits
{
    using Duration = std::chrono::milliseconds;

    /// Connection, TLS and greeting together.
    Duration opening = std::chrono::seconds(60);
    // RFC 5321, section 4.5.3.2, gives the following.
    Duration hello = std::chrono::minutes(5); ///< EHLO, HELO
    Duration reset = std::chrono::minutes(5);
    Duration mail = std::chrono::minutes(5);
    Duration recipient = std::chrono::minutes(5);
    Duration dataCommand = std::chrono::minutes(2); ///< DATA, up to its 354
    Duration dataBlock = std::chrono::minutes(3);   ///< until the network takes more of the message
    Duration content = std::chrono::minutes(10);    ///< the reply to the message itself
    /// QUIT; nobody waits for its reply.
    Duration quit = std::chrono::seconds(5);

    /// RFC 5321, section 4.5.3.1.5, allows 512 bytes; some servers write more.
    qsizetype replyLineLength = 4096;
    int replyLines = 256;

    /// How long the reply to that command may take; all others share one limit.
    [[nodiscard]] Duration forReplyTo(SmtpVerb verb) const
    {
        switch (verb) {
        case SmtpVerb::Rset:
            return reset;
        case SmtpVerb::Mail:
            return mail;
        case SmtpVerb::Rcpt:
            return recipient;
        case SmtpVerb::Data:
            return dataCommand;
        case SmtpVerb::Bdat:
        case SmtpVerb::Content:
            return content;
        default:
            return hello;
        }
    }
};
