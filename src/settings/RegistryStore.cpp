#include "settings/RegistryStore.h"

#include <windows.h>

#include <mutex>

namespace {

/// Handles of 32 bits that a program of 64 bits is given are sign-extended.
HKEY handleOfRoot(std::uint32_t root)
{
    return static_cast<HKEY>(LongToHandle(static_cast<LONG>(root)));
}

} // namespace

/// None for a key that is not open, which the registry refuses as InvalidHandle.
void *RegistryStore::handleOf(Key key) const
{
    const auto found = m_handles.find(key);
    return found == m_handles.end() ? nullptr : found->second;
}

std::int32_t RegistryStore::createKey(std::uint32_t root, const std::string &path, Key &key)
{
    key = 0;
    HKEY handle = nullptr;
    const std::int32_t code = RegCreateKeyA(handleOfRoot(root), path.c_str(), &handle);
    if (code != StoreCode::Success)
        return code;
    const std::unique_lock guard(m_mutex);
    key = ++m_lastKey;
    m_handles.emplace(key, handle);
    return StoreCode::Success;
}

std::int32_t RegistryStore::queryValue(Key key, const std::string &name, ValueKind &kind,
                                       std::span<char> buffer, std::uint32_t &size)
{
    // Without an address the registry tells the size and calls that a success.
    char nothing = 0;
    auto *bytes = reinterpret_cast<BYTE *>(buffer.empty() ? &nothing : buffer.data());
    // The kind of an absent value would become None.
    DWORD kindSeen = REG_NONE;
    DWORD sizeSeen = static_cast<DWORD>(buffer.size());
    const std::shared_lock guard(m_mutex);
    const std::int32_t code = RegQueryValueExA(static_cast<HKEY>(handleOf(key)), name.c_str(),
                                               nullptr, &kindSeen, bytes, &sizeSeen);
    if (code == StoreCode::Success || code == StoreCode::MoreData) {
        kind = ValueKind{static_cast<std::uint32_t>(kindSeen)};
        size = sizeSeen;
    }
    return code;
}

std::int32_t RegistryStore::setValue(Key key, const std::string &name, ValueKind kind,
                                     std::span<const char> bytes)
{
    // The registry counts a NUL that follows the bytes, but not behind an empty text.
    const bool lacksNul = kind == ValueKind::Text && (bytes.empty() || bytes.back() != '\0');
    const auto size = static_cast<DWORD>(bytes.size() + (lacksNul ? 1 : 0));
    const std::shared_lock guard(m_mutex);
    return RegSetValueExA(static_cast<HKEY>(handleOf(key)), name.c_str(), 0,
                          static_cast<DWORD>(kind), reinterpret_cast<const BYTE *>(bytes.data()),
                          size);
}

std::int32_t RegistryStore::deleteValue(Key key, const std::string &name)
{
    const std::shared_lock guard(m_mutex);
    return RegDeleteValueA(static_cast<HKEY>(handleOf(key)), name.c_str());
}

std::int32_t RegistryStore::flushKey(Key key)
{
    const std::shared_lock guard(m_mutex);
    return RegFlushKey(static_cast<HKEY>(handleOf(key)));
}

std::int32_t RegistryStore::closeKey(Key key)
{
    const std::unique_lock guard(m_mutex);
    const auto handle = static_cast<HKEY>(handleOf(key));
    m_handles.erase(key);
    return RegCloseKey(handle);
}

std::int32_t RegistryStore::deleteKey(std::uint32_t root, const std::string &path)
{
    return RegDeleteKeyA(handleOfRoot(root), path.c_str());
}

std::int32_t RegistryStore::waitForChange(Key key)
{
    std::shared_lock guard(m_mutex);
    const auto handle = static_cast<HKEY>(handleOf(key));
    const HANDLE changed = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    const std::int32_t code =
        RegNotifyChangeKeyValue(handle, FALSE, REG_NOTIFY_CHANGE_LAST_SET, changed, TRUE);
    // Closing the key ends the wait too, and has to be possible meanwhile.
    guard.unlock();
    if (code == ERROR_SUCCESS)
        WaitForSingleObject(changed, INFINITE);
    CloseHandle(changed);
    guard.lock();
    // The registry calls that a success too.
    return handleOf(key) == nullptr ? StoreCode::InvalidHandle : code;
}
