#pragma once

#include "settings/SettingsStore.h"

/// Typed access to the named values of one key. Objects are short-lived: create, Init, read or
/// write, release. No operation throws; each returns the store's code cut to 16 bits.
class IOReg
{
public:
    explicit IOReg(SettingsStore &store) : m_store(store) {}
    IOReg(const IOReg &) = delete;
    IOReg &operator=(const IOReg &) = delete;
    ~IOReg();

    std::uint32_t Root = 0;
    SettingsStore::Key hKey = 0;
    std::string Folder;

    /// Opens the key `newFolder` below `newRoot`, creating it when it is absent.
    std::int16_t Init(std::uint32_t newRoot, const std::string &newFolder);
    /// Reads a text. An absent one makes Value empty: a default is the caller's to apply.
    std::int16_t ReadStr(const std::string &Name, std::string &Value);
    /// Reads a 32-bit number. An absent one leaves Value as it is: what the caller put there is
    /// the default.
    std::int16_t ReadInt(const std::string &Name, std::int32_t &Value);
    /// Reads the key's default value as a text.
    std::int16_t ReadDef(std::string &Value);
    std::int16_t WriteStr(const std::string &Name, const std::string &Value);
    std::int16_t WriteInt(const std::string &Name, std::int32_t Value);
    /// Sets the key's default value.
    std::int16_t WriteDef(const std::string &Value);
    /// Deletes one value.
    std::int16_t Delete(const std::string &Name);
    /// Removes the whole key. When it cannot be flushed or closed: -1, and nothing is removed.
    std::int16_t Remove();
    /// Blocks the calling thread until a value of this key is set or deleted.
    std::int16_t WaitForChange();

private:
    SettingsStore &m_store;
};
