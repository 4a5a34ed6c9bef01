#include "TakingServer.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <vector>

namespace {

void insist(bool succeeded, const char *what)
{
    if (succeeded)
        return;
    std::perror(what);
    std::exit(1);
}

class Connection
{
public:
    Connection(Descriptor socket, TakingServer::Offer offer, std::map<std::string, int> &counts)
        : m_socket(std::move(socket)), m_offer(offer), m_counts(counts)
    {}

    /// Serves it to its end, which may come at any byte; a client that is gone reads no replies.
    void serve()
    {
        say("220 counting.example ESMTP");
        while (const auto line = nextLine()) {
            answer(*line);
            if (*line == "QUIT")
                break;
        }
        sendReplies();
    }

private:
    void answer(const std::string &line)
    {
        if (line.starts_with("EHLO")) {
            greet();
        } else if (line.starts_with("RCPT TO:<")) {
            const auto start = line.find('<') + 1;
            m_to.push_back(line.substr(start, line.find('>') - start));
            say("250 2.1.5 Ok");
        } else if (line == "DATA") {
            say("354 Go ahead");
            if (readToDot())
                take();
        } else if (line.starts_with("BDAT ")) {
            if (readBytes(
                    std::strtoul(line.c_str() + std::string_view("BDAT ").size(), nullptr, 10)))
                take();
        } else {
            m_to.clear();
            say("250 2.0.0 Ok");
        }
    }

    void greet()
    {
        say("250-counting.example");
        if (m_offer != TakingServer::Offer::Nothing)
            say("250-PIPELINING");
        if (m_offer == TakingServer::Offer::ChunkingAndPipelining)
            say("250-CHUNKING");
        say("250 8BITMIME");
    }

    void take()
    {
        for (const std::string &address : m_to)
            ++m_counts[address];
        m_to.clear();
        say("250 2.0.0 Ok: taken");
    }

    void say(const char *reply) { (m_replies += reply) += "\r\n"; }
    // All that one arrival asked for, together.
    void sendReplies()
    {
        ::send(m_socket.number(), m_replies.data(), m_replies.size(), MSG_NOSIGNAL);
        m_replies.clear();
    }

    bool readMore()
    {
        std::array<char, 4096> block{};
        const ssize_t count = ::recv(m_socket.number(), block.data(), block.size(), 0);
        if (count > 0)
            m_input.append(block.data(), static_cast<std::size_t>(count));
        return count > 0;
    }

    std::optional<std::string> takeTo(std::string_view end)
    {
        std::size_t at = 0;
        while ((at = m_input.find(end)) == std::string::npos) {
            sendReplies();
            if (!readMore())
                return std::nullopt;
        }
        std::string taken = m_input.substr(0, at);
        m_input.erase(0, at + end.size());
        return taken;
    }
    std::optional<std::string> nextLine() { return takeTo("\r\n"); }
    bool readToDot() { return takeTo("\r\n.\r\n").has_value(); }

    // What was asked before the content is answered with it, so that each run takes the same steps.
    bool readBytes(std::size_t count)
    {
        while (m_input.size() < count) {
            if (!readMore())
                return false;
        }
        m_input.erase(0, count);
        return true;
    }

    Descriptor m_socket;
    TakingServer::Offer m_offer;
    std::map<std::string, int> &m_counts;
    std::vector<std::string> m_to;
    std::string m_input;
    std::string m_replies;
};

} // namespace

TakingServer::TakingServer(Offer offer)
    : m_offer(offer), m_listening(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    socklen_t size = sizeof address;
    constexpr int Backlog = 16;
    insist(m_listening.isOpen(), "socket");
    insist(::bind(m_listening.number(), generic, size) == 0, "bind");
    insist(::listen(m_listening.number(), Backlog) == 0, "listen");
    insist(::getsockname(m_listening.number(), generic, &size) == 0, "getsockname");
    m_port = ntohs(address.sin_port);
}

std::string TakingServer::serve(const Descriptor &pipe)
{
    std::string said;
    for (;;) {
        std::array<pollfd, 2> waiting{
            {{m_listening.number(), POLLIN, 0}, {pipe.number(), POLLIN, 0}}};
        insist(::poll(waiting.data(), waiting.size(), -1) > 0, "poll");
        if (waiting[0].revents != 0) {
            Descriptor socket(::accept4(m_listening.number(), nullptr, nullptr, SOCK_CLOEXEC));
            insist(socket.isOpen(), "accept");
            Connection(std::move(socket), m_offer, m_counts).serve();
            continue;
        }
        std::array<char, 4096> block{};
        const ssize_t count = ::read(pipe.number(), block.data(), block.size());
        if (count <= 0)
            return said;
        said.append(block.data(), static_cast<std::size_t>(count));
    }
}
