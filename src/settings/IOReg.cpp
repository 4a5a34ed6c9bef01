#include "settings/IOReg.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

std::int16_t status(std::int32_t code)
{
    return static_cast<std::int16_t>(code);
}

} // namespace

IOReg::~IOReg()
{
    m_store.closeKey(hKey);
}

std::int16_t IOReg::Init(std::uint32_t newRoot, const std::string &newFolder)
{
    m_store.closeKey(hKey);
    Root = newRoot;
    Folder = newFolder;
    return status(m_store.createKey(Root, Folder, hKey));
}

std::int16_t IOReg::ReadStr(const std::string &Name, std::string &Value)
{
    auto kind = ValueKind::None;
    std::uint32_t size = 0;
    m_store.queryValue(hKey, Name, kind, {Value.data(), 0}, size);
    Value.assign(size, ' ');
    const std::int32_t code = m_store.queryValue(hKey, Name, kind, Value, size);
    // The value may have been changed by another program between the two queries.
    Value.resize(code == StoreCode::Success ? size : 0);
    if (!Value.empty())
        Value.pop_back();
    return status(code);
}

std::int16_t IOReg::ReadInt(const std::string &Name, std::int32_t &Value)
{
    std::array<char, sizeof Value> buffer{};
    std::memcpy(buffer.data(), &Value, buffer.size());
    auto kind = ValueKind::None;
    std::uint32_t size = 0;
    m_store.queryValue(hKey, Name, kind, {buffer.data(), 0}, size);
    kind = ValueKind::None;
    const std::size_t room = std::min<std::size_t>(size, buffer.size());
    const std::int32_t code = m_store.queryValue(hKey, Name, kind, {buffer.data(), room}, size);
    if (code == StoreCode::Success)
        std::memcpy(&Value, buffer.data(), buffer.size());
    return status(code);
}

std::int16_t IOReg::ReadDef(std::string &Value)
{
    return ReadStr({}, Value);
}

std::int16_t IOReg::WriteStr(const std::string &Name, const std::string &Value)
{
    return status(m_store.setValue(hKey, Name, ValueKind::Text, Value));
}

std::int16_t IOReg::WriteInt(const std::string &Name, std::int32_t Value)
{
    std::array<char, sizeof Value> bytes{};
    std::memcpy(bytes.data(), &Value, bytes.size());
    return status(m_store.setValue(hKey, Name, ValueKind::Integer, bytes));
}

std::int16_t IOReg::WriteDef(const std::string &Value)
{
    return WriteStr({}, Value);
}

std::int16_t IOReg::Delete(const std::string &Name)
{
    return status(m_store.deleteValue(hKey, Name));
}

std::int16_t IOReg::Remove()
{
    if (m_store.flushKey(hKey) != StoreCode::Success)
        return -1;
    if (m_store.closeKey(hKey) != StoreCode::Success)
        return -1;
    hKey = 0;
    return status(m_store.deleteKey(Root, Folder));
}

std::int16_t IOReg::WaitForChange()
{
    return status(m_store.waitForChange(hKey));
}
