// A network with a round-trip time: hands every byte on to another port, half a round trip late in
// either direction. Its bandwidth is without limit.
//
//     bench_delay PORT ROUND_TRIP_MILLISECONDS
//
// Prints the port it listens on.

#include "Loopback.h"

#include <sys/socket.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

/// What is under way in one direction.
class Line
{
public:
    void put(std::string bytes, Clock::time_point arrival)
    {
        const std::scoped_lock guard(m_mutex);
        m_underWay.push_back({std::move(bytes), arrival});
        m_filled.notify_one();
    }

    /// The next bytes, when they arrive; an empty text is the end.
    std::string take()
    {
        std::unique_lock guard(m_mutex);
        m_filled.wait(guard, [this] { return !m_underWay.empty(); });
        auto next = std::move(m_underWay.front());
        m_underWay.pop_front();
        guard.unlock();
        std::this_thread::sleep_until(next.arrival);
        return next.bytes;
    }

private:
    struct Packet
    {
        std::string bytes;
        Clock::time_point arrival;
    };

    std::mutex m_mutex;
    std::condition_variable m_filled;
    std::deque<Packet> m_underWay;
};

/// Carries bytes from one socket to the other until the first is closed.
void carry(const Descriptor &from, const Descriptor &to, Clock::duration delay)
{
    Line line;
    std::thread out([&line, &to] {
        for (;;) {
            const std::string bytes = line.take();
            if (bytes.empty() || !Loopback::send(to, bytes))
                break;
        }
        ::shutdown(to.number(), SHUT_WR);
    });
    std::string block(256 * 1024, '\0');
    for (;;) {
        const ssize_t count = ::recv(from.number(), block.data(), block.size(), 0);
        const auto length = static_cast<std::size_t>(count > 0 ? count : 0);
        line.put(block.substr(0, length), Clock::now() + delay);
        if (length == 0)
            break;
    }
    out.join();
}

void connectBoth(Descriptor client, std::uint16_t port, Clock::duration delay)
{
    const Descriptor server = Loopback::connect(port);
    std::thread back([&] { carry(server, client, delay); });
    carry(client, server, delay);
    back.join();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("bench_delay PORT ROUND_TRIP_MILLISECONDS\n", stderr);
        return 2;
    }
    const auto port = static_cast<std::uint16_t>(std::atoi(argv[1]));
    const Clock::duration oneWay = std::chrono::microseconds(500 * std::atol(argv[2]));
    const Descriptor listening = Loopback::listenAndTell();
    for (;;) {
        std::thread([client = Loopback::accept(listening), port, oneWay]() mutable {
            connectBoth(std::move(client), port, oneWay);
        }).detach();
    }
}
