#include "base/Interrupts.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array Signals{SIGINT, SIGTERM, SIGHUP};

// A handler may do next to nothing: it writes one byte to this pipe, which the event loop watches.
int writeEnd = -1;

void noteSignal(int)
{
    const int errorBefore = errno;
    const char byte = 0;
    // A full pipe means that the event loop has enough to read.
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
    errno = errorBefore;
}

void handleSignals(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : Signals)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

struct Interrupts::Watch
{
    std::array<int, 2> pipe{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
};

Interrupts::Interrupts(QObject *parent) : QObject(parent), m_watch(std::make_unique<Watch>())
{
    if (::pipe2(m_watch->pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writeEnd = m_watch->pipe[1];
    m_watch->notifier = std::make_unique<QSocketNotifier>(m_watch->pipe[0], QSocketNotifier::Read);
    connect(m_watch->notifier.get(), &QSocketNotifier::activated, this, [this] {
        // Each signal counts: a second one means more than the first.
        char byte = 0;
        while (::read(m_watch->pipe[0], &byte, 1) == 1)
            Q_EMIT interrupted();
    });
    handleSignals(noteSignal);
}

Interrupts::~Interrupts()
{
    if (!m_watch->notifier)
        return;
    handleSignals(SIG_IGN);
    writeEnd = -1;
    ::close(m_watch->pipe[0]);
    ::close(m_watch->pipe[1]);
}
