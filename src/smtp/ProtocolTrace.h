#pragma once

#include "smtp/ServerAddress.h"

/// Who said a line of the dialogue.
enum class Speaker {
    Client,
    Server,
    Note ///< what happened to the connection
};

/// Takes the dialogue with a server down, for people who have to find out what went wrong. Secrets
/// are replaced before a line comes here.
class ProtocolTrace
{
public:
    ProtocolTrace() = default;
    ProtocolTrace(const ProtocolTrace &) = delete;
    ProtocolTrace &operator=(const ProtocolTrace &) = delete;
    virtual ~ProtocolTrace() = default;

    /// Whether the dialogue with this host is wanted; asked once a session.
    [[nodiscard]] virtual bool wants(const QString &host) const = 0;
    /// One line, without its line end.
    virtual void line(const ServerAddress &server, Speaker speaker, const QString &text) = 0;
};
