#pragma once

#include "settings/SettingsStore.h"

#include <map>
#include <shared_mutex>

/// The store of a system with a registry: each operation is one call of it. Texts are bytes in the
/// system's code page.
class RegistryStore final : public SettingsStore
{
public:
    std::int32_t createKey(std::uint32_t root, const std::string &path, Key &key) override;
    std::int32_t queryValue(Key key, const std::string &name, ValueKind &kind,
                            std::span<char> buffer, std::uint32_t &size) override;
    std::int32_t setValue(Key key, const std::string &name, ValueKind kind,
                          std::span<const char> bytes) override;
    std::int32_t deleteValue(Key key, const std::string &name) override;
    std::int32_t flushKey(Key key) override;
    std::int32_t closeKey(Key key) override;
    std::int32_t deleteKey(std::uint32_t root, const std::string &path) override;
    std::int32_t waitForChange(Key key) override;

private:
    [[nodiscard]] void *handleOf(Key key) const;

    /// Guards the fields below, and is held shared during a call: the system gives the number of a
    /// closed handle to the next key.
    mutable std::shared_mutex m_mutex;
    std::map<Key, void *> m_handles;
    Key m_lastKey = 0;
};
