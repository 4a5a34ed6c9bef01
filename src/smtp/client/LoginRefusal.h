#pragma once

#include "base/ServerReply.h"

/// What a server's refusal of a login, or of a session without one, means.
struct LoginRefusal
{
    QString text;         ///< plain words, the server's reply behind them
    bool isFinal = false; ///< another password would not help

    /// RFC 4954, section 6, and the codes of RFC 3463 with those that providers have added.
    [[nodiscard]] static LoginRefusal of(const ServerReply &reply);
};
