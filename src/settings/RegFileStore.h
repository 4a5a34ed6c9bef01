#pragma once

#include "settings/SettingsStore.h"

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>

/// The store of a system without a registry: one text file in the registry editor's format (see
/// RegFile), readable and editable. The file is replaced as a whole, so that a reader never sees
/// half of it; a lock file beside it lets one program at a time read, change and replace. A file
/// that cannot be read is never written over. Symbolic links are followed.
class RegFileStore final : public SettingsStore
{
public:
    explicit RegFileStore(const std::filesystem::path &file);
    ~RegFileStore() override;

    /// $XDG_CONFIG_HOME/Sorvanta/settings.reg, below ~/.config when that variable is not set.
    [[nodiscard]] static std::filesystem::path defaultFile();

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
    struct OpenKey;

    [[nodiscard]] std::shared_ptr<OpenKey> opened(Key key) const;

    const std::filesystem::path m_file;
    mutable std::mutex m_mutex; ///< guards the two fields below
    std::map<Key, std::shared_ptr<OpenKey>> m_keys;
    Key m_lastKey = 0;
};
