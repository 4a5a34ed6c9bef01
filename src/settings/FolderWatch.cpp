#include "settings/FolderWatch.h"

#include <poll.h>
#include <sys/inotify.h>

#include <array>
#include <cerrno>
#include <cstring>

FolderWatch::FolderWatch(const std::filesystem::path &folder)
    : m_events(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)),
      m_watching(m_events.isOpen() &&
                 ::inotify_add_watch(m_events.number(), folder.c_str(),
                                     IN_MOVE | IN_CLOSE_WRITE | IN_DELETE) >= 0)
{}

FolderWatch::Event FolderWatch::next(const Descriptor &stop, std::string &name)
{
    while (m_pending.empty()) {
        std::array<pollfd, 2> sources{{{m_events.number(), POLLIN, 0}, {stop.number(), POLLIN, 0}}};
        if (::poll(sources.data(), sources.size(), -1) < 0 && errno != EINTR)
            return Event::Gone;
        if ((sources[1].revents & POLLIN) != 0)
            return Event::Stopped;
        if ((sources[0].revents & POLLIN) != 0 && !readEvents())
            return Event::Gone;
    }
    const Pending first = std::move(m_pending.front());
    m_pending.pop_front();
    name = first.name;
    return first.event;
}

bool FolderWatch::readEvents()
{
    alignas(inotify_event) std::array<char, 16384> buffer{};
    const ssize_t count = ::read(m_events.number(), buffer.data(), buffer.size());
    if (count < 0)
        return errno == EINTR || errno == EAGAIN;
    for (std::size_t at = 0; at < static_cast<std::size_t>(count);) {
        inotify_event event = {};
        std::memcpy(&event, buffer.data() + at, sizeof event);
        at += sizeof event;
        if ((event.mask & IN_Q_OVERFLOW) != 0)
            m_pending.push_back({Event::Missed, {}});
        else if ((event.mask & IN_IGNORED) != 0)
            m_pending.push_back({Event::Gone, {}});
        else if (event.len > 0)
            // The name is padded with NULs.
            m_pending.push_back(
                {(event.mask & IN_MOVED_FROM) != 0 ? Event::MovedAway : Event::Changed,
                 std::string(buffer.data() + at)});
        at += event.len;
    }
    return true;
}
