#pragma once

#include "smtp/LoginSource.h"
#include "smtp/ProtocolTrace.h"
#include "smtp/ServerAccounts.h"
#include "smtp/client/Limits.h"

/// The ports that have rules of their own.
struct WellKnownPorts
{
    quint16 relay = 25;        ///< between mail servers (RFC 5321)
    quint16 submission = 587;  ///< with a login (RFC 6409)
    quint16 submissions = 465; ///< the same, TLS from the first byte (RFC 8314)

    /// Whether a server that offers logins on that port is used with one, unasked.
    [[nodiscard]] bool wantsLogin(quint16 port) const
    {
        return port == submission || port == submissions;
    }
};

/// What the sessions with servers work with. All of it outlives them.
struct ClientSurroundings
{
    LoginSource &logins;
    ServerAccounts &accounts;
    ProtocolTrace &trace;
    QString hostName; ///< the full name of this machine for EHLO; empty when it has none
    Limits limits = {};
    WellKnownPorts ports = {};
};
