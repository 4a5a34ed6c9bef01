// Settings files: lines that nobody changes stay byte for byte, and a value set can be read.

#include "Fuzzing.h"
#include "settings/RegFile.h"

#include <string>

void fuzz(QByteArrayView bytes)
{
    const std::string content(bytes.data(), static_cast<std::size_t>(bytes.size()));
    auto file = RegFile::fromBytes(content);
    if (!file)
        return;
    mustHold(file->toBytes() == content, "a file that nobody changes stays as it is");
    const std::string key = "HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta";
    const RegFile::Value value = content;
    file->set(key, "Server", value);
    const RegFile::Value *const found = file->find(key, "server");
    mustHold(found != nullptr && *found == value, "a value set is there");
    const auto again = RegFile::fromBytes(file->toBytes());
    mustHold(again.has_value(), "what was written can be read");
    const RegFile::Value *const read = again->find(key, "SERVER");
    mustHold(read != nullptr && *read == value, "a value written is there");
    file->removeKey(key);
    mustHold(file->find(key, "Server") == nullptr, "a value of a removed key is gone");
}
