#pragma once

#include <cstdint>
#include <span>
#include <string>

/// What kind of value a name holds.
enum class ValueKind : std::uint32_t {
    None = 0,
    Text = 1,    ///< bytes that end in a NUL
    Integer = 4, ///< 32 bits
};

/// The codes a store answers with. They are the registry's own, so that a store that calls it has
/// nothing to translate.
namespace StoreCode {
inline constexpr std::int32_t Success = 0;
inline constexpr std::int32_t NotFound = 2;
inline constexpr std::int32_t AccessDenied = 5;
inline constexpr std::int32_t InvalidHandle = 6;
inline constexpr std::int32_t InvalidParameter = 87;
inline constexpr std::int32_t DiskFull = 112;
inline constexpr std::int32_t BadPath = 161;
inline constexpr std::int32_t MoreData = 234;
inline constexpr std::int32_t Damaged = 1009;
inline constexpr std::int32_t InputOutputFailed = 1016;
inline constexpr std::int32_t KeyDeleted = 1018;
} // namespace StoreCode

/// The root of the current user's settings.
inline constexpr std::uint32_t CurrentUserRoot = 0x80000001;

/// A hierarchical store of named values with the registry's semantics. Texts are bytes; what they
/// mean is the callers' business. Names and paths are compared without regard to ASCII case; the
/// parts of a path are separated by "\"; an empty name is the key's default value.
///
/// Every operation answers with a code of StoreCode. Operations may be called from any thread.
class SettingsStore
{
public:
    /// An open key; 0 is none.
    using Key = std::uint32_t;

    SettingsStore() = default;
    SettingsStore(const SettingsStore &) = delete;
    SettingsStore &operator=(const SettingsStore &) = delete;
    virtual ~SettingsStore() = default;

    /// Opens the key, creating it and missing parents. On failure `key` is 0.
    virtual std::int32_t createKey(std::uint32_t root, const std::string &path, Key &key) = 0;
    /// Puts the value's bytes into `buffer` and their number, a text's NUL included, into `size`.
    /// A value larger than the buffer is MoreData and leaves the buffer as it was; an absent value
    /// is NotFound and leaves `kind`, `size` and buffer as they were.
    virtual std::int32_t queryValue(Key key, const std::string &name, ValueKind &kind,
                                    std::span<char> buffer, std::uint32_t &size) = 0;
    /// Sets a value. A text's NUL is added when its last byte is not one; a NUL must follow the
    /// bytes in memory.
    virtual std::int32_t setValue(Key key, const std::string &name, ValueKind kind,
                                  std::span<const char> bytes) = 0;
    virtual std::int32_t deleteValue(Key key, const std::string &name) = 0;
    /// Returns when everything set so far is on the disk.
    virtual std::int32_t flushKey(Key key) = 0;
    /// Releases the key; a wait for its change ends.
    virtual std::int32_t closeKey(Key key) = 0;
    /// Removes a key with its values. A key that has keys below it is AccessDenied.
    virtual std::int32_t deleteKey(std::uint32_t root, const std::string &path) = 0;
    /// Blocks until a value of this key is set or deleted, by whomever. A registry may take a value
    /// that is set to what it was for no change.
    virtual std::int32_t waitForChange(Key key) = 0;
};
