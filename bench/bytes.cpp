// Writes messages of so many bytes that are there already, on one connection: what the system alone
// takes for a mailing, below which no client can come.
//
//     bench_bytes PORT COUNT SIZE

#include "Loopback.h"

#include <sys/socket.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

/// Reads until what came ends so; false when the connection ends before.
bool awaitEnd(const Descriptor &socket, std::string_view end)
{
    std::array<char, 4096> block{};
    std::string replies;
    while (!replies.ends_with(end)) {
        const ssize_t count = ::recv(socket.number(), block.data(), block.size(), 0);
        if (count <= 0)
            return false;
        replies.append(block.data(), static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("bench_bytes PORT COUNT SIZE\n", stderr);
        return 2;
    }
    const Descriptor socket = Loopback::connect(static_cast<std::uint16_t>(std::atoi(argv[1])));
    const int count = std::atoi(argv[2]);
    const std::string size = argv[3];
    const std::string envelope = "MAIL FROM:<sender@bench.example>\r\n"
                                 "RCPT TO:<recipient@bench.example>\r\n"
                                 "BDAT " +
                                 size + " LAST\r\n";
    const std::string content(std::strtoul(size.c_str(), nullptr, 10), 'x');
    if (!awaitEnd(socket, "ESMTP\r\n") || !Loopback::send(socket, "EHLO bytes.example\r\n") ||
        !awaitEnd(socket, "250 SIZE 104857600\r\n"))
        return 1;
    for (int message = 0; message < count; ++message) {
        if (!Loopback::send(socket, envelope) || !Loopback::send(socket, content) ||
            !awaitEnd(socket, "taken\r\n"))
            return 1;
    }
}
