#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The content of a file in the registry editor's text format:
///
///     REGEDIT4
///
///     [HKEY_CURRENT_USER\Software\Calvessa\Sorvanta]
///     "Server"="mail.example.org:587"
///     "Ricevuta"=dword:00000001
///     @="the key's default value"
///
/// In quotes, `\\` stands for `\` and `\"` for `"`; any other `\` is itself. A text with control
/// characters is written as its bytes, `hex(1):0d,0a,00`. Lines that say something else are kept
/// byte for byte, whatever changes around them. Of two lines for the same value the last one
/// holds. Keys are full paths; keys and names are compared without regard to ASCII case.
class RegFile
{
public:
    using Value = std::variant<std::string, std::uint32_t>;

    /// Takes any bytes as text; nothing when they are UTF-16, where no line could be told apart.
    [[nodiscard]] static std::optional<RegFile> fromBytes(std::string_view bytes);
    [[nodiscard]] std::string toBytes() const;

    /// Whether the key, or one below it, is there.
    [[nodiscard]] bool hasKey(std::string_view key) const;
    [[nodiscard]] bool hasSubkeys(std::string_view key) const;
    void addKey(std::string_view key);
    void removeKey(std::string_view key);

    /// The value, or nothing. Valid until the next change.
    [[nodiscard]] const Value *find(std::string_view key, std::string_view name) const;
    /// Sets a value; the key is added when it is not there.
    void set(std::string_view key, std::string_view name, const Value &value);
    /// Whether there was such a value.
    bool erase(std::string_view key, std::string_view name);

    /// The lines that hold this key's values, to see whether any has changed.
    [[nodiscard]] std::vector<std::string> valueLines(std::string_view key) const;

    /// Whether two names are the same but for ASCII case.
    [[nodiscard]] static bool sameName(std::string_view a, std::string_view b);
    /// Whether a name or path can stand in such a file.
    [[nodiscard]] static bool isWritable(std::string_view name);

private:
    struct Line
    {
        enum class Kind { Key, Value, Other };

        Kind kind = Kind::Other;
        std::string bytes; ///< with its line end
        std::string key;   ///< the key that the line stands under
        std::string name;
        RegFile::Value value;
    };
    using Lines = std::vector<Line>;

    [[nodiscard]] static Line parsedLine(std::string_view bytes, const std::string &key);
    [[nodiscard]] Lines::const_iterator found(std::string_view key, std::string_view name) const;
    void endLastLine();

    Lines m_lines;
};
