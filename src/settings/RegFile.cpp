#include "settings/RegFile.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <utility>

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view Utf8Mark = "\xef\xbb\xbf";

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isControl(char c)
{
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 || code == 0x7f;
}

bool isBelow(std::string_view path, std::string_view key)
{
    return path.size() > key.size() && path[key.size()] == '\\' &&
           RegFile::sameName(path.substr(0, key.size()), key);
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

/// Cuts off `rest`, when it begins with it, a prefix; letters in either case.
bool take(std::string_view &rest, std::string_view prefix)
{
    if (!RegFile::sameName(rest.substr(0, prefix.size()), prefix))
        return false;
    rest.remove_prefix(prefix.size());
    return true;
}

/// Cuts off `rest` a quoted text and returns what it says.
std::optional<std::string> takeQuoted(std::string_view &rest)
{
    if (!take(rest, "\""))
        return {};
    std::string text;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        if (rest[i] == '"') {
            rest.remove_prefix(i + 1);
            return text;
        }
        const bool escapes =
            rest[i] == '\\' && i + 1 < rest.size() && (rest[i + 1] == '\\' || rest[i + 1] == '"');
        text += escapes ? rest[++i] : rest[i];
    }
    return {};
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '\\' || c == '"')
            result += '\\';
        result += c;
    }
    return result + '"';
}

std::optional<std::uint32_t> fromHex(std::string_view digits, std::size_t most)
{
    std::uint32_t number = 0;
    if (digits.empty() || digits.size() > most)
        return {};
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    if (error != std::errc() || end != digits.data() + digits.size())
        return {};
    return number;
}

/// A text from its bytes "41,42,00", the NUL at its end left out.
std::optional<std::string> fromHexBytes(std::string_view list)
{
    std::string text;
    while (!list.empty()) {
        const std::size_t comma = std::min(list.find(','), list.size());
        const auto byte = fromHex(trimmed(list.substr(0, comma)), 2);
        if (!byte)
            return {};
        text += static_cast<char>(*byte);
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    if (!text.empty() && text.back() == '\0')
        text.pop_back();
    return text;
}

std::string toHexBytes(std::string_view text)
{
    std::string list;
    for (const char c : text) {
        char byte[4];
        std::snprintf(byte, sizeof byte, "%02x,",
                      static_cast<unsigned>(static_cast<unsigned char>(c)));
        list += byte;
    }
    return list + "00";
}

std::optional<RegFile::Value> parsedValue(std::string_view text)
{
    if (text.starts_with('"')) {
        auto value = takeQuoted(text);
        if (!value || !text.empty())
            return {};
        return *value;
    }
    if (take(text, "dword:"))
        return fromHex(text, 8);
    if (take(text, "hex(1):"))
        return fromHexBytes(text);
    return {};
}

std::string valueText(const RegFile::Value &value)
{
    if (const auto *number = std::get_if<std::uint32_t>(&value)) {
        char digits[9];
        std::snprintf(digits, sizeof digits, "%08x", *number);
        return std::string("dword:") + digits;
    }
    const auto &text = std::get<std::string>(value);
    if (std::ranges::any_of(text, isControl))
        return "hex(1):" + toHexBytes(text);
    return quoted(text);
}

std::string valueLine(std::string_view name, const RegFile::Value &value)
{
    return (name.empty() ? "@" : quoted(name)) + '=' + valueText(value);
}

/// How long the first line is, its end (CR LF, LF or CR) included.
std::size_t lineLength(std::string_view bytes)
{
    const std::size_t end = bytes.find_first_of("\r\n");
    if (end == std::string_view::npos)
        return bytes.size();
    return end + (bytes.substr(end).starts_with(LineEnd) ? 2 : 1);
}

/// The end of a line's bytes.
std::string_view lineEndOf(std::string_view bytes)
{
    const std::size_t end = bytes.find_first_of("\r\n");
    return end == std::string_view::npos ? LineEnd : bytes.substr(end);
}

} // namespace

std::optional<RegFile> RegFile::fromBytes(std::string_view bytes)
{
    if (bytes.starts_with("\xff\xfe") || bytes.starts_with("\xfe\xff"))
        return {};
    RegFile file;
    std::string key;
    while (!bytes.empty()) {
        const std::size_t length = lineLength(bytes);
        file.m_lines.push_back(parsedLine(bytes.substr(0, length), key));
        key = file.m_lines.back().key;
        bytes.remove_prefix(length);
    }
    return file;
}

RegFile::Line RegFile::parsedLine(std::string_view bytes, const std::string &key)
{
    Line line{.bytes = std::string(bytes), .key = key, .name = {}, .value = {}};
    std::string_view text = bytes;
    if (text.starts_with(Utf8Mark))
        text.remove_prefix(Utf8Mark.size());
    text = trimmed(text);
    if (text.starts_with('[')) {
        // Values under a heading that cannot be read belong to no key.
        const bool isKey = text.ends_with(']') && !text.starts_with("[-");
        line.kind = isKey ? Line::Kind::Key : Line::Kind::Other;
        line.key = isKey ? text.substr(1, text.size() - 2) : std::string_view();
        return line;
    }
    const auto name = take(text, "@") ? std::string() : takeQuoted(text);
    if (!name || key.empty() || !take(text, "="))
        return line;
    if (auto value = parsedValue(text)) {
        line.kind = Line::Kind::Value;
        line.name = *name;
        line.value = std::move(*value);
    }
    return line;
}

std::string RegFile::toBytes() const
{
    std::string bytes;
    for (const Line &line : m_lines)
        bytes += line.bytes;
    return bytes;
}

bool RegFile::hasKey(std::string_view key) const
{
    return hasSubkeys(key) || std::ranges::any_of(m_lines, [key](const Line &line) {
               return line.kind == Line::Kind::Key && sameName(line.key, key);
           });
}

bool RegFile::hasSubkeys(std::string_view key) const
{
    return std::ranges::any_of(m_lines, [key](const Line &line) { return isBelow(line.key, key); });
}

void RegFile::addKey(std::string_view key)
{
    endLastLine();
    if (m_lines.empty())
        m_lines.push_back(parsedLine("REGEDIT4\r\n", {}));
    if (!trimmed(m_lines.back().bytes).empty())
        m_lines.push_back(parsedLine(LineEnd, m_lines.back().key));
    m_lines.push_back(parsedLine('[' + std::string(key) + ']' + std::string(LineEnd), {}));
}

void RegFile::removeKey(std::string_view key)
{
    std::erase_if(m_lines, [key](const Line &line) { return sameName(line.key, key); });
}

RegFile::Lines::const_iterator RegFile::found(std::string_view key, std::string_view name) const
{
    const auto backwards = std::find_if(m_lines.rbegin(), m_lines.rend(), [&](const Line &line) {
        return line.kind == Line::Kind::Value && sameName(line.key, key) &&
               sameName(line.name, name);
    });
    return backwards == m_lines.rend() ? m_lines.end() : std::prev(backwards.base());
}

const RegFile::Value *RegFile::find(std::string_view key, std::string_view name) const
{
    const auto line = found(key, name);
    return line == m_lines.end() ? nullptr : &line->value;
}

void RegFile::set(std::string_view key, std::string_view name, const Value &value)
{
    if (const auto line = found(key, name); line != m_lines.end()) {
        Line &old = m_lines[static_cast<std::size_t>(line - m_lines.begin())];
        old.bytes = valueLine(old.name, value) + std::string(lineEndOf(old.bytes));
        old.value = value;
        return;
    }
    const auto isOfKey = [key](const Line &line) {
        return sameName(line.key, key) && !trimmed(line.bytes).empty();
    };
    if (std::ranges::none_of(m_lines, isOfKey))
        addKey(key);
    endLastLine();
    const auto place = std::find_if(m_lines.rbegin(), m_lines.rend(), isOfKey).base();
    m_lines.insert(
        place, parsedLine(valueLine(name, value) + std::string(LineEnd), std::prev(place)->key));
}

bool RegFile::erase(std::string_view key, std::string_view name)
{
    return std::erase_if(m_lines, [&](const Line &line) {
               return line.kind == Line::Kind::Value && sameName(line.key, key) &&
                      sameName(line.name, name);
           }) > 0;
}

std::vector<std::string> RegFile::valueLines(std::string_view key) const
{
    std::vector<std::string> lines;
    for (const Line &line : m_lines) {
        if (line.kind == Line::Kind::Value && sameName(line.key, key))
            lines.emplace_back(trimmed(line.bytes));
    }
    return lines;
}

bool RegFile::sameName(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, lower, lower);
}

bool RegFile::isWritable(std::string_view name)
{
    return std::ranges::none_of(name, isControl);
}

void RegFile::endLastLine()
{
    if (m_lines.empty())
        return;
    std::string &bytes = m_lines.back().bytes;
    if (!bytes.ends_with('\n') && !bytes.ends_with('\r'))
        bytes += LineEnd;
}
