// An SMTP server that takes every message and forgets it.
//
//     bench_sink chunking|pipelining|neither
//
// Prints the port it listens on, then a line of JSON for each connection when it has ended: how
// many messages were taken, and the seconds from the first one taken to the last.

#include "Loopback.h"

#include <sys/socket.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using Time = std::chrono::steady_clock::time_point;

class Connection
{
public:
    Connection(Descriptor socket, std::string_view offer)
        : m_socket(std::move(socket)), m_offer(offer), m_block(256 * 1024)
    {}

    void serve()
    {
        reply("220 sink.example ESMTP");
        std::string line;
        while (!m_ended && readLine(line))
            answer(line);
        sendReplies();
        const std::chrono::duration<double> seconds = m_last - m_first;
        std::printf("{\"messages\": %ld, \"seconds\": %.6f}\n", m_messages, seconds.count());
        std::fflush(stdout);
    }

private:
    void answer(const std::string &line)
    {
        const auto is = [&line](const char *verb) {
            return ::strncasecmp(line.c_str(), verb, std::strlen(verb)) == 0;
        };
        if (is("EHLO")) {
            greet();
        } else if (is("RCPT")) {
            m_hasRecipient = true;
            reply("250 2.1.5 Ok");
        } else if (is("DATA")) {
            reply("354 Go ahead");
            readToDot();
            taken();
        } else if (is("BDAT ")) {
            skip(std::strtoul(line.c_str() + std::strlen("BDAT "), nullptr, 10));
            if (m_hasRecipient && line.ends_with("LAST"))
                taken();
            else
                reply(m_hasRecipient ? "250 2.0.0 Ok" : "503 5.5.1 RCPT first");
        } else if (is("QUIT")) {
            reply("221 2.0.0 Bye");
            m_ended = true;
        } else if (is("MAIL") || is("RSET") || is("NOOP") || is("HELO")) {
            m_hasRecipient = false;
            reply("250 2.0.0 Ok");
        } else {
            reply("502 5.5.2 Unknown command");
        }
    }

    void greet()
    {
        if (m_offer == "neither") {
            reply("250-sink.example\r\n250 8BITMIME");
            return;
        }
        reply("250-sink.example\r\n250-8BITMIME\r\n250-PIPELINING");
        reply(m_offer == "chunking" ? "250-CHUNKING\r\n250 SIZE 104857600" : "250 SIZE 104857600");
    }

    void taken()
    {
        m_last = std::chrono::steady_clock::now();
        if (m_messages++ == 0)
            m_first = m_last;
        m_hasRecipient = false;
        reply("250 2.0.0 Ok: taken");
    }

    void reply(const char *text) { (m_replies += text) += "\r\n"; }

    bool sendReplies()
    {
        const bool sent = Loopback::send(m_socket, m_replies);
        m_replies.clear();
        return sent;
    }

    /// Waits for more bytes. Replies go out only here: all that one arrival asked for, together.
    bool refill()
    {
        m_input.erase(0, m_at);
        m_at = 0;
        if (!sendReplies())
            return false;
        const ssize_t count = ::recv(m_socket.number(), m_block.data(), m_block.size(), 0);
        if (count <= 0) {
            m_ended = true;
            return false;
        }
        m_input.append(m_block.data(), static_cast<std::size_t>(count));
        return true;
    }

    bool readLine(std::string &line)
    {
        for (;;) {
            const std::size_t end = m_input.find("\r\n", m_at);
            if (end != std::string::npos) {
                line.assign(m_input, m_at, end - m_at);
                m_at = end + 2;
                return true;
            }
            if (!refill())
                return false;
        }
    }

    void readToDot()
    {
        constexpr std::string_view Dot = "\r\n.\r\n";
        for (;;) {
            const std::size_t end = m_input.find(Dot, m_at);
            if (end != std::string::npos) {
                m_at = end + Dot.size();
                return;
            }
            // The dot may be cut by the end of what is here.
            if (m_input.size() - m_at > Dot.size())
                m_at = m_input.size() - Dot.size();
            if (!refill())
                return;
        }
    }

    void skip(std::size_t count)
    {
        for (;;) {
            const std::size_t here = std::min(count, m_input.size() - m_at);
            m_at += here;
            count -= here;
            if (count == 0 || !refill())
                return;
        }
    }

    Descriptor m_socket;
    std::string_view m_offer;
    std::vector<char> m_block;
    std::string m_input;
    std::size_t m_at = 0;
    std::string m_replies;
    bool m_hasRecipient = false;
    bool m_ended = false;
    long m_messages = 0;
    Time m_first;
    Time m_last;
};

} // namespace

int main(int argc, char **argv)
{
    const std::string_view offer = argc == 2 ? argv[1] : "";
    if (offer != "chunking" && offer != "pipelining" && offer != "neither") {
        std::fputs("bench_sink chunking|pipelining|neither\n", stderr);
        return 2;
    }
    const Descriptor listening = Loopback::listenAndTell();
    for (;;) {
        std::thread([socket = Loopback::accept(listening), offer]() mutable {
            Connection(std::move(socket), offer).serve();
        }).detach();
    }
}
