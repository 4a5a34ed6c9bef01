#include "settings/RegFileStore.h"

#include "settings/FolderWatch.h"
#include "settings/LockedFile.h"

#include <pwd.h>
#include <sys/eventfd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>

namespace {

/// What the file calls a key: the root's name and the path.
std::int32_t fullPath(std::uint32_t root, std::string_view path, std::string &full)
{
    if (root != CurrentUserRoot)
        return StoreCode::InvalidHandle;
    if (path.starts_with('\\') || path.find("\\\\") != std::string_view::npos ||
        !RegFile::isWritable(path))
        return StoreCode::BadPath;
    if (path.ends_with('\\'))
        path.remove_suffix(1);
    full = "HKEY_CURRENT_USER";
    if (!path.empty())
        (full += '\\') += path;
    return StoreCode::Success;
}

/// A short name for a key, the same for the same key in every program: the FNV-1a hash of its path
/// in small letters.
std::string markOf(std::string_view key)
{
    std::uint32_t hash = 2166136261U;
    for (const char c : key) {
        const char small = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        hash = (hash ^ static_cast<unsigned char>(small)) * 16777619U;
    }
    std::array<char, 9> text{};
    std::snprintf(text.data(), text.size(), "%08x", hash);
    return text.data();
}

/// The mark of changes that set no value: adding a key and removing one.
constexpr std::string_view KeysMark = "keys";

std::string bytesOf(const RegFile::Value &value)
{
    if (const auto *text = std::get_if<std::string>(&value))
        return *text + '\0';
    const auto number = std::get<std::uint32_t>(value);
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

std::optional<RegFile::Value> valueOf(ValueKind kind, std::span<const char> bytes)
{
    if (kind == ValueKind::Text) {
        std::string text(bytes.begin(), bytes.end());
        if (!text.empty() && text.back() == '\0')
            text.pop_back();
        return text;
    }
    std::uint32_t number = 0;
    if (kind != ValueKind::Integer || bytes.size() != sizeof number)
        return {};
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

std::filesystem::path homeFolder()
{
    if (const char *home = std::getenv("HOME"); home != nullptr && *home == '/')
        return home;
    const passwd *user = ::getpwuid(::getuid());
    return user != nullptr ? user->pw_dir : "/";
}

} // namespace

/// What is known of an open key. A waiting thread holds on to it while another closes the key.
struct RegFileStore::OpenKey
{
    std::string path;
    Descriptor closed{::eventfd(0, EFD_CLOEXEC)}; ///< readable when the key has been closed
};

RegFileStore::RegFileStore(const std::filesystem::path &file) : m_file(absolute(file)) {}

RegFileStore::~RegFileStore() = default;

std::filesystem::path RegFileStore::defaultFile()
{
    const char *config = std::getenv("XDG_CONFIG_HOME");
    // A relative path in this variable is invalid and to be ignored.
    const bool isSet = config != nullptr && *config == '/';
    const std::filesystem::path folder = isSet ? config : homeFolder() / ".config";
    return folder / "Sorvanta" / "settings.reg";
}

std::shared_ptr<RegFileStore::OpenKey> RegFileStore::opened(Key key) const
{
    const std::scoped_lock guard(m_mutex);
    const auto found = m_keys.find(key);
    return found == m_keys.end() ? nullptr : found->second;
}

std::int32_t RegFileStore::createKey(std::uint32_t root, const std::string &path, Key &key)
{
    key = 0;
    auto newKey = std::make_shared<OpenKey>();
    std::int32_t code = fullPath(root, path, newKey->path);
    if (code != StoreCode::Success)
        return code;
    const std::filesystem::path file = LockedFile::target(m_file);
    RegFile content;
    code = LockedFile::read(file, content);
    if (code == StoreCode::Success && !content.hasKey(newKey->path)) {
        code = LockedFile::change(file, KeysMark, [&newKey](RegFile &current) {
            if (!current.hasKey(newKey->path))
                current.addKey(newKey->path);
            return StoreCode::Success;
        });
    }
    if (code != StoreCode::Success)
        return code;
    const std::scoped_lock guard(m_mutex);
    key = ++m_lastKey;
    m_keys.emplace(key, std::move(newKey));
    return StoreCode::Success;
}

std::int32_t RegFileStore::queryValue(Key key, const std::string &name, ValueKind &kind,
                                      std::span<char> buffer, std::uint32_t &size)
{
    const auto open = opened(key);
    if (!open)
        return StoreCode::InvalidHandle;
    RegFile content;
    const std::int32_t code = LockedFile::read(LockedFile::target(m_file), content);
    if (code != StoreCode::Success)
        return code;
    if (!content.hasKey(open->path))
        return StoreCode::KeyDeleted;
    const RegFile::Value *value = content.find(open->path, name);
    if (value == nullptr)
        return StoreCode::NotFound;
    const std::string bytes = bytesOf(*value);
    kind = std::holds_alternative<std::string>(*value) ? ValueKind::Text : ValueKind::Integer;
    size = static_cast<std::uint32_t>(bytes.size());
    if (bytes.size() > buffer.size())
        return StoreCode::MoreData;
    std::memcpy(buffer.data(), bytes.data(), bytes.size());
    return StoreCode::Success;
}

std::int32_t RegFileStore::setValue(Key key, const std::string &name, ValueKind kind,
                                    std::span<const char> bytes)
{
    const auto open = opened(key);
    if (!open)
        return StoreCode::InvalidHandle;
    const auto value = valueOf(kind, bytes);
    if (!value || !RegFile::isWritable(name))
        return StoreCode::InvalidParameter;
    return LockedFile::change(LockedFile::target(m_file), markOf(open->path),
                              [&](RegFile &content) {
                                  if (!content.hasKey(open->path))
                                      return StoreCode::KeyDeleted;
                                  content.set(open->path, name, *value);
                                  return StoreCode::Success;
                              });
}

std::int32_t RegFileStore::deleteValue(Key key, const std::string &name)
{
    const auto open = opened(key);
    if (!open)
        return StoreCode::InvalidHandle;
    return LockedFile::change(
        LockedFile::target(m_file), markOf(open->path), [&](RegFile &content) {
            if (!content.hasKey(open->path))
                return StoreCode::KeyDeleted;
            return content.erase(open->path, name) ? StoreCode::Success : StoreCode::NotFound;
        });
}

std::int32_t RegFileStore::flushKey(Key key)
{
    if (!opened(key))
        return StoreCode::InvalidHandle;
    return LockedFile::flush(LockedFile::target(m_file));
}

std::int32_t RegFileStore::closeKey(Key key)
{
    const std::scoped_lock guard(m_mutex);
    const auto found = m_keys.find(key);
    if (found == m_keys.end())
        return StoreCode::InvalidHandle;
    ::eventfd_write(found->second->closed.number(), 1);
    m_keys.erase(found);
    return StoreCode::Success;
}

std::int32_t RegFileStore::deleteKey(std::uint32_t root, const std::string &path)
{
    std::string full;
    if (const std::int32_t code = fullPath(root, path, full); code != StoreCode::Success)
        return code;
    return LockedFile::change(LockedFile::target(m_file), KeysMark, [&full](RegFile &content) {
        if (!content.hasKey(full))
            return StoreCode::NotFound;
        if (content.hasSubkeys(full))
            return StoreCode::AccessDenied;
        content.removeKey(full);
        return StoreCode::Success;
    });
}

std::int32_t RegFileStore::waitForChange(Key key)
{
    const auto open = opened(key);
    if (!open)
        return StoreCode::InvalidHandle;
    // Nothing that happens from here on is missed.
    const std::filesystem::path file = LockedFile::target(m_file);
    FolderWatch watch(file.parent_path());
    if (!watch.isWatching())
        return StoreCode::InputOutputFailed;
    RegFile content;
    std::int32_t code = LockedFile::read(file, content);
    const auto before = content.valueLines(open->path);
    // A change made through a store shows by the name of the file it was written to first, also
    // when a value is set to what it was; one made with an editor, by the values.
    const auto changeOfKey = LockedFile::fileOfChange(file, markOf(open->path)).filename().string();
    while (code == StoreCode::Success) {
        if (!content.hasKey(open->path))
            return StoreCode::KeyDeleted;
        std::string name;
        const auto event = watch.next(open->closed, name);
        if (event == FolderWatch::Event::Stopped)
            return StoreCode::InvalidHandle;
        if (event == FolderWatch::Event::Gone)
            return StoreCode::KeyDeleted;
        if (event == FolderWatch::Event::Missed ||
            (event == FolderWatch::Event::MovedAway && name == changeOfKey))
            return StoreCode::Success;
        code = LockedFile::read(file, content);
        if (content.valueLines(open->path) != before)
            return code;
    }
    return code;
}
