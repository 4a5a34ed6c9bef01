#pragma once

#include "settings/Descriptor.h"

#include <deque>
#include <filesystem>
#include <string>

/// Watches a folder from its creation on: which of its entries are renamed or written.
class FolderWatch
{
public:
    explicit FolderWatch(const std::filesystem::path &folder);

    [[nodiscard]] bool isWatching() const { return m_watching; }

    /// What ended a wait.
    enum class Event {
        MovedAway, ///< the entry `name` was given another name
        Changed,   ///< the entry `name` was replaced, removed, or written to its end
        Missed,    ///< there was too much to tell: anything may have changed
        Gone,      ///< the folder is no longer there
        Stopped,   ///< the descriptor `stop` has become readable
    };
    /// Blocks until the next event. Several are told one by one, in their order.
    [[nodiscard]] Event next(const Descriptor &stop, std::string &name);

private:
    struct Pending
    {
        Event event;
        std::string name;
    };

    [[nodiscard]] bool readEvents();

    Descriptor m_events;
    bool m_watching;
    std::deque<Pending> m_pending;
};
