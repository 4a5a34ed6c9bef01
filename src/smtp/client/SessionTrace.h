#pragma once

#include "smtp/ProtocolTrace.h"
#include "smtp/client/ReplyReader.h"

/// The dialogue of one session on its way into the trace, when that is wanted. What comes here
/// holds no secret any more.
class SessionTrace
{
public:
    explicit SessionTrace(ProtocolTrace &trace) : m_trace(trace) {}

    /// The server of the session; says whether its dialogue is wanted.
    void begin(const ServerAddress &server);
    /// Commands as they are written, line ends included.
    void commands(const QByteArray &lines);
    /// A line of the client that is not to be shown as it is, or something that happened.
    void client(const QString &line) { write(Speaker::Client, line); }
    void note(const QString &text) { write(Speaker::Note, text); }
    void reply(const WireReply &reply);

private:
    void write(Speaker speaker, const QString &text);

    ProtocolTrace &m_trace;
    ServerAddress m_server;
    bool m_isWanted = false;
};
