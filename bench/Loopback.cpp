#include "Loopback.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int Backlog = 64;

sockaddr_in addressOf(std::uint16_t port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// The system's calls take an address of any family.
const sockaddr *generic(const sockaddr_in &address)
{
    return reinterpret_cast<const sockaddr *>(&address);
}

void insist(bool succeeded, const char *what)
{
    if (succeeded)
        return;
    std::perror(what);
    std::exit(1);
}

Descriptor withoutDelay(Descriptor socket)
{
    const int on = 1;
    ::setsockopt(socket.number(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    return socket;
}

} // namespace

Descriptor Loopback::listenAndTell()
{
    Descriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    insist(socket.isOpen(), "socket");
    sockaddr_in address = addressOf(0);
    insist(::bind(socket.number(), generic(address), sizeof address) == 0, "bind");
    insist(::listen(socket.number(), Backlog) == 0, "listen");
    socklen_t size = sizeof address;
    insist(::getsockname(socket.number(), reinterpret_cast<sockaddr *>(&address), &size) == 0,
           "getsockname");
    std::printf("%d\n", ntohs(address.sin_port));
    std::fflush(stdout);
    return socket;
}

Descriptor Loopback::accept(const Descriptor &listening)
{
    Descriptor socket(::accept4(listening.number(), nullptr, nullptr, SOCK_CLOEXEC));
    insist(socket.isOpen(), "accept");
    return withoutDelay(std::move(socket));
}

Descriptor Loopback::connect(std::uint16_t port)
{
    Descriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    insist(socket.isOpen(), "socket");
    const sockaddr_in address = addressOf(port);
    insist(::connect(socket.number(), generic(address), sizeof address) == 0, "connect");
    return withoutDelay(std::move(socket));
}

bool Loopback::send(const Descriptor &socket, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::send(socket.number(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}
