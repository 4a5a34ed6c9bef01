// A run is killed at every step that it takes, and goes on in another process. The server has then
// given everybody the message exactly once, but for those whom the program names as in doubt: they
// got it at most once, and are never more than the recipients of one message.
//
//     test_killed FOLDER

#include "Trials.h"

#include <QCoreApplication>
#include <QSslSocket>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int AtOnce = 2;

using Offer = TakingServer::Offer;
using Addressing = Setting::Addressing;

constexpr std::array Settings{
    Setting{"singles, chunking", Offer::ChunkingAndPipelining, Addressing::Singles},
    Setting{"singles, pipelining", Offer::Pipelining, Addressing::Singles},
    Setting{"singles, neither", Offer::Nothing, Addressing::Singles},
    Setting{"groups, chunking", Offer::ChunkingAndPipelining, Addressing::Groups},
    Setting{"groups, pipelining", Offer::Pipelining, Addressing::Groups},
    Setting{"groups, neither", Offer::Nothing, Addressing::Groups},
    Setting{"singles, killed before", Offer::ChunkingAndPipelining, Addressing::Singles, 100},
    Setting{"groups, killed before", Offer::Nothing, Addressing::Groups, 50},
};

using Tallies = std::array<Tally, Settings.size()>;

/// Every so many steps of each setting, from that one on.
Tallies killEvery(int stride, int first, const std::filesystem::path &folder)
{
    Tallies tallies;
    for (std::size_t place = 0; place < Settings.size(); ++place) {
        Trials trials(Settings[place], folder / std::to_string(first));
        int step = first;
        while (trials.killAt(step))
            step += stride;
        tallies[place] = trials.tally();
    }
    return tallies;
}

/// The same in a process of its own; its tallies come out of the descriptor.
int killEveryElsewhere(int stride, int first, const std::filesystem::path &folder)
{
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0)
        std::abort();
    if (::fork() == 0) {
        const Tallies tallies = killEvery(stride, first, folder);
        const bool isWritten =
            ::write(pipe[1], tallies.data(), sizeof tallies) == ssize_t{sizeof tallies};
        ::_exit(isWritten ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    ::close(pipe[1]);
    return pipe[0];
}

/// What each run would do anew is done once for all.
void warmUp(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    static_cast<void>(QSslSocket::supportsSsl());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("test_killed FOLDER\n", stderr);
        return EXIT_FAILURE;
    }
    warmUp(argc, argv);
    std::array<int, AtOnce> workers{};
    for (int worker = 0; worker < AtOnce; ++worker)
        workers[static_cast<std::size_t>(worker)] = killEveryElsewhere(AtOnce, worker + 1, argv[1]);
    Tallies sums;
    bool isGood = true;
    for (const int worker : workers) {
        Tallies part;
        isGood = ::read(worker, part.data(), sizeof part) == ssize_t{sizeof part} && isGood;
        for (std::size_t place = 0; place < part.size(); ++place) {
            sums[place].kills += part[place].kills;
            sums[place].inDoubtAndReceived += part[place].inDoubtAndReceived;
            sums[place].inDoubtAndNot += part[place].inDoubtAndNot;
            sums[place].complaints += part[place].complaints;
        }
        ::wait(nullptr);
    }
    for (std::size_t place = 0; place < sums.size(); ++place) {
        const Tally &sum = sums[place];
        std::printf("%-22s %4d kills, in doubt %4d who got it and %4d who did not\n",
                    Settings[place].name, sum.kills, sum.inDoubtAndReceived, sum.inDoubtAndNot);
        // The runs must have met what they are made for.
        const bool isRich =
            sum.kills > Trials::Recipients && sum.inDoubtAndReceived > 0 && sum.inDoubtAndNot > 0;
        isGood = isGood && isRich && sum.complaints == 0;
    }
    return isGood ? EXIT_SUCCESS : EXIT_FAILURE;
}
