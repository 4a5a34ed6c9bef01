#pragma once

#include "settings/Descriptor.h"

#include <cstdint>
#include <map>
#include <string>

/// An SMTP server on 127.0.0.1 that takes every message once its content is whole, and counts what
/// each address got. It is no thread and no process: it serves while somebody waits in `serve`, one
/// connection after the other.
class TakingServer
{
public:
    /// Its extensions besides 8BITMIME.
    enum class Offer { ChunkingAndPipelining, Pipelining, Nothing };

    explicit TakingServer(Offer offer);

    [[nodiscard]] std::uint16_t port() const { return m_port; }
    /// Serves until the other end of that pipe is closed, as the end of the process that holds it
    /// does, and everything that was sent until then is read. Returns what came through the pipe.
    [[nodiscard]] std::string serve(const Descriptor &pipe);
    /// How many messages each address got since the last call.
    [[nodiscard]] std::map<std::string, int> takeCounts() { return std::exchange(m_counts, {}); }

private:
    Offer m_offer;
    Descriptor m_listening;
    std::uint16_t m_port;
    std::map<std::string, int> m_counts;
};
