#include "StoreCases.h"

#include "settings/IOReg.h"
#include "settings/Settings.h"

#include <array>
#include <atomic>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace {

using namespace std::string_literals;

template <typename T>
void expect(const char *what, const T &seen, const T &expected)
{
    if (seen == expected)
        return;
    std::ostringstream text;
    text << what << ": " << seen << " instead of " << expected;
    throw std::runtime_error(text.str());
}

void expectTrue(const char *what, bool condition)
{
    if (!condition)
        throw std::runtime_error(what);
}

/// A key of the test, open.
class TestKey : public IOReg
{
public:
    explicit TestKey(SettingsStore &store, const std::string &folder = TestFolder) : IOReg(store)
    {
        expect("Init", int{Init(CurrentUserRoot, folder)}, 0);
    }
};

std::string readText(SettingsStore &store, const std::string &name)
{
    TestKey reg(store);
    std::string value = "what was there before";
    reg.ReadStr(name, value);
    return value;
}

void firstRunCreatesTheKeyAndItsParents(SettingsStore &store)
{
    IOReg reg(store);
    expect("Init", int{reg.Init(CurrentUserRoot, TestFolder + "\\a\\b"s)}, 0);
    expectTrue("the key has no handle", reg.hKey != 0);
    expect("Root", reg.Root, CurrentUserRoot);
    expect("Folder", reg.Folder, TestFolder + "\\a\\b"s);
    expect("the parent is there", store.deleteKey(CurrentUserRoot, TestFolder + "\\a"s),
           StoreCode::AccessDenied);
}

void firstRunReadsNothingButDefaults(SettingsStore &store)
{
    TestKey reg(store);
    for (const auto &setting : Settings::All) {
        if (setting.kind == ValueKind::Text) {
            std::string text = "before";
            expect("status of an absent text", int{reg.ReadStr(std::string(setting.name), text)},
                   2);
            expect("an absent text", text, ""s);
        } else {
            std::int32_t number = 0;
            expect("status of an absent number",
                   int{reg.ReadInt(std::string(setting.name), number)}, 2);
            expect("an absent number", number, 0);
        }
    }
}

void initOpensAKeyThatIsThere(SettingsStore &store)
{
    TestKey(store).WriteStr("Server", "mail.example");
    expect("the value written before", readText(store, "Server"), "mail.example"s);
}

void absentTextReadsAsEmptyWhateverTheCallerHad(SettingsStore &store)
{
    TestKey reg(store);
    std::string value = "a default that must not stay";
    expect("status", int{reg.ReadStr("Server", value)}, 2);
    expect("value", value, ""s);
}

void absentIntegerLeavesTheCallersValue(SettingsStore &store)
{
    TestKey reg(store);
    std::int32_t value = 42;
    expect("status", int{reg.ReadInt("MultiSend", value)}, 2);
    expect("value", value, 42);
}

void absentMultiSendTakesTheValueOfRicevuta(SettingsStore &store)
{
    TestKey reg(store);
    reg.WriteInt(Settings::Ricevuta, 1);
    std::int32_t holder = 0;
    reg.ReadInt(Settings::Ricevuta, holder);
    reg.ReadInt(Settings::MultiSend, holder);
    expect("the holder after both reads", holder, 1);
}

void textsRoundTripUnchanged(SettingsStore &store)
{
    TestKey reg(store);
    for (const auto &text :
         {""s, "plain"s, " leading and trailing "s, "Citt\xe0 perch\xe9"s, "Citt\xc3\xa0"s,
          "\"quoted\" \\ and \\\" more"s, "C:\\Documenti Sorvanta\\"s, "[HKEY_CURRENT_USER]"s,
          "dword:00000001"s, "two\r\nlines\tand a tab"s, "a NUL\0inside"s,
          std::string(70000, 'x')}) {
        expect("status of the write", int{reg.WriteStr("Text", text)}, 0);
        std::string seen = "before";
        expect("status of the read", int{reg.ReadStr("Text", seen)}, 0);
        expect("text", seen, text);
    }
}

void everyByteRoundTrips(SettingsStore &store)
{
    TestKey reg(store);
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text = "a"s + static_cast<char>(byte) + "b";
        reg.WriteStr("Byte", text);
        std::string seen;
        reg.ReadStr("Byte", seen);
        expect("text", seen, text);
    }
}

void theStoredTextEndsInOneNul(SettingsStore &store)
{
    TestKey reg(store);
    for (const auto &text : {""s, "hello"s, "hello\0"s}) {
        const std::string read = text.substr(0, text.find('\0'));
        const std::string stored = read + '\0';
        reg.WriteStr("Text", text);
        std::array<char, 16> buffer{};
        auto kind = ValueKind::None;
        std::uint32_t size = 0;
        expect("code", store.queryValue(reg.hKey, "Text", kind, buffer, size), StoreCode::Success);
        expect("size", size, static_cast<std::uint32_t>(stored.size()));
        expect("bytes", std::string(buffer.data(), size), stored);
        expect("what is read", readText(store, "Text"), read);
    }
}

void queryAnswersWithTheSizeNeeded(SettingsStore &store)
{
    TestKey reg(store);
    reg.WriteStr("Text", "hello");
    reg.WriteInt("Number", 7);
    std::array<char, 4> buffer{'k', 'e', 'e', 'p'};
    auto kind = ValueKind::None;
    std::uint32_t size = 0;
    expect("text, no buffer", store.queryValue(reg.hKey, "Text", kind, {buffer.data(), 0}, size),
           StoreCode::MoreData);
    expect("its size", size, 6U);
    expectTrue("it is a text", kind == ValueKind::Text);
    expect("text, small buffer", store.queryValue(reg.hKey, "Text", kind, buffer, size),
           StoreCode::MoreData);
    expect("the buffer", std::string(buffer.data(), buffer.size()), "keep"s);
    expect("number, no buffer",
           store.queryValue(reg.hKey, "Number", kind, {buffer.data(), 0}, size),
           StoreCode::MoreData);
    expect("its size", size, 4U);
    expectTrue("it is an integer", kind == ValueKind::Integer);
    kind = ValueKind::None;
    size = 99;
    expect("absent", store.queryValue(reg.hKey, "Absent", kind, buffer, size), StoreCode::NotFound);
    expect("its size", size, 99U);
    expectTrue("it has no kind", kind == ValueKind::None);
}

void integersRoundTrip(SettingsStore &store)
{
    TestKey reg(store);
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number : {0, 1, -1, 70000, Limits::min(), Limits::max()}) {
        expect("status of the write", int{reg.WriteInt("Number", number)}, 0);
        std::int32_t seen = 99;
        expect("status of the read", int{reg.ReadInt("Number", seen)}, 0);
        expect("number", seen, number);
    }
}

void readIntOfALongTextAnswers234AndWritesNothing(SettingsStore &store)
{
    TestKey reg(store);
    reg.WriteStr("Ricevuta", "a text");
    struct
    {
        std::int32_t before = 11;
        std::int32_t value = 22;
        std::int32_t after = 33;
    } holder;
    expect("status", int{reg.ReadInt("Ricevuta", holder.value)}, 234);
    expect("value", holder.value, 22);
    expect("what lies before it", holder.before, 11);
    expect("what lies after it", holder.after, 33);
}

void readIntOfAShortTextReadsItsBytes(SettingsStore &store)
{
    TestKey reg(store);
    reg.WriteStr("Ricevuta", "1");
    std::int32_t value = 0;
    expect("status", int{reg.ReadInt("Ricevuta", value)}, 0);
    expect("value", value, std::int32_t{'1'});
}

void aValueTakesTheKindOfTheLastWrite(SettingsStore &store)
{
    TestKey reg(store);
    reg.WriteInt("Value", 5);
    reg.WriteStr("Value", "five");
    expect("text over a number", readText(store, "Value"), "five"s);
    reg.WriteInt("Value", 6);
    std::int32_t number = 0;
    reg.ReadInt("Value", number);
    expect("number over a text", number, 6);
}

void theDefaultValueHasNoName(SettingsStore &store)
{
    TestKey reg(store);
    std::string value = "before";
    expect("absent", int{reg.ReadDef(value)}, 2);
    expect("its value", value, ""s);
    expect("WriteDef", int{reg.WriteDef("the default")}, 0);
    expect("ReadDef", int{reg.ReadDef(value)}, 0);
    expect("value", value, "the default"s);
    expect("by its empty name", readText(store, ""), "the default"s);
}

void deleteRemovesOneValue(SettingsStore &store)
{
    TestKey reg(store);
    reg.WriteStr("One", "1");
    reg.WriteStr("Two", "2");
    expect("Delete", int{reg.Delete("One")}, 0);
    expect("again", int{reg.Delete("One")}, 2);
    expect("the deleted value", readText(store, "One"), ""s);
    expect("the other", readText(store, "Two"), "2"s);
}

void namesAndPathsIgnoreCase(SettingsStore &store)
{
    TestKey(store).WriteStr("Server", "mail.example");
    TestKey reg(store, "SOFTWARE\\calvessa\\SORVANTA test");
    std::string value;
    expect("status", int{reg.ReadStr("sERVER", value)}, 0);
    expect("value", value, "mail.example"s);
}

void keysDoNotShareValues(SettingsStore &store)
{
    TestKey parent(store);
    TestKey child(store, TestFolder + "\\Child"s);
    parent.WriteStr("Name", "parent");
    child.WriteStr("Name", "child");
    expect("of the parent", readText(store, "Name"), "parent"s);
    std::string value;
    child.ReadStr("Name", value);
    expect("of the child", value, "child"s);
}

void twoObjectsSeeEachOthersWrites(SettingsStore &store)
{
    TestKey one(store);
    TestKey two(store);
    one.WriteStr("Name", "from one");
    std::string value;
    two.ReadStr("Name", value);
    expect("value", value, "from one"s);
}

void removeTakesTheWholeKeyAway(SettingsStore &store)
{
    TestKey reg(store);
    TestKey other(store);
    reg.WriteStr("Server", "mail.example");
    expect("Remove", int{reg.Remove()}, 0);
    std::string value = "before";
    expect("status on the removed key", int{other.ReadStr("Server", value)}, 1018);
    expect("value", value, ""s);
    expect("writing to the removed key", int{other.WriteInt("Number", 1)}, 1018);
    expect("the key made anew is empty", readText(store, "Server"), ""s);
}

void removeLeavesAKeyWithKeysBelowIt(SettingsStore &store)
{
    TestKey child(store, TestFolder + "\\Child"s);
    TestKey parent(store);
    parent.WriteStr("Name", "parent");
    expect("Remove", int{parent.Remove()}, 5);
    expect("value", readText(store, "Name"), "parent"s);
}

void removeWithoutAKeyAnswersMinusOne(SettingsStore &store)
{
    IOReg reg(store);
    expect("Remove", int{reg.Remove()}, -1);
}

void withoutAKeyNothingIsReadOrWritten(SettingsStore &store)
{
    IOReg reg(store);
    std::string text = "before";
    std::int32_t number = 5;
    expect("ReadStr", int{reg.ReadStr("Name", text)}, 6);
    expect("text", text, ""s);
    expect("ReadInt", int{reg.ReadInt("Name", number)}, 6);
    expect("number", number, 5);
    expect("WriteStr", int{reg.WriteStr("Name", "text")}, 6);
    expect("Delete", int{reg.Delete("Name")}, 6);
    expect("WaitForChange", int{reg.WaitForChange()}, 6);
}

void destructionReleasesTheKey(SettingsStore &store)
{
    SettingsStore::Key key = 0;
    {
        TestKey reg(store);
        key = reg.hKey;
    }
    expect("flush after the release", store.flushKey(key), StoreCode::InvalidHandle);
}

void initAgainReleasesTheKeyBefore(SettingsStore &store)
{
    TestKey reg(store);
    const auto before = reg.hKey;
    reg.Init(CurrentUserRoot, TestFolder + "\\Other"s);
    expect("flush of the key before", store.flushKey(before), StoreCode::InvalidHandle);
}

void emptyDefaultDocPathIsAsAbsent(SettingsStore &store)
{
    const std::string before = Settings::ReadDefaultDocPath(store);
    Settings::SaveDefaultDocPath(store, "");
    const std::string whenEmpty = Settings::ReadDefaultDocPath(store);
    Settings::SaveDefaultDocPath(store, "/srv/documents");
    const std::string whenSet = Settings::ReadDefaultDocPath(store);
    Settings::SaveDefaultDocPath(store, before);
    expect("empty", whenEmpty, "C:\\Documenti Sorvanta\\"s);
    expect("set", whenSet, "/srv/documents"s);
}

/// A second thread that waits for a change of the test's key.
class Waiter
{
public:
    explicit Waiter(SettingsStore &store)
        : m_thread([this, &store] {
              TestKey reg(store);
              m_opened = true;
              m_status = reg.WaitForChange();
              m_returned = true;
          })
    {
        while (!m_opened)
            std::this_thread::yield();
    }
    Waiter(const Waiter &) = delete;
    Waiter &operator=(const Waiter &) = delete;
    ~Waiter() { m_thread.join(); }

    [[nodiscard]] bool hasReturned() const { return m_returned; }
    [[nodiscard]] int status() const { return m_status; }

private:
    std::atomic<bool> m_opened = false;
    std::atomic<bool> m_returned = false;
    std::atomic<int> m_status = -2;
    std::thread m_thread;
};

/// Repeats a change until the waiter has seen it: nobody outside can tell when a wait has begun.
template <typename Change>
void expectWakes(SettingsStore &store, Change change)
{
    Waiter waiter(store);
    while (!waiter.hasReturned())
        change();
    expect("status of the wait", waiter.status(), 0);
}

void settingAValueEndsTheWait(SettingsStore &store)
{
    TestKey reg(store);
    std::int32_t number = 0;
    expectWakes(store, [&] { reg.WriteInt("Number", ++number); });
}

void settingAValueToWhatItWasEndsTheWait(SettingsStore &store)
{
    TestKey reg(store);
    reg.WriteStr("Name", "same");
    expectWakes(store, [&] { reg.WriteStr("Name", "same"); });
}

void deletingAValueEndsTheWait(SettingsStore &store)
{
    TestKey reg(store);
    int number = 0;
    std::array<std::string, 500> names;
    for (std::string &name : names) {
        name = "Name " + std::to_string(++number);
        reg.WriteStr(name, "value");
    }
    std::size_t next = 0;
    Waiter waiter(store);
    while (!waiter.hasReturned() && next < names.size())
        reg.Delete(names[next++]);
    // A machine may be so slow that the wait begins behind the last deletion.
    while (!waiter.hasReturned())
        reg.WriteStr("Name", "value");
    expect("status of the wait", waiter.status(), 0);
}

void changesOfOtherKeysDoNotEndTheWait(SettingsStore &store)
{
    TestKey reg(store);
    TestKey child(store, TestFolder + "\\Child"s);
    TestKey sibling(store, TestFolder + " 2"s);
    Waiter waiter(store);
    bool early = false;
    for (int i = 0; i < 100; ++i) {
        child.WriteInt("Number", i);
        sibling.WriteInt("Number", i);
        early = early || waiter.hasReturned();
    }
    while (!waiter.hasReturned())
        reg.WriteStr("Name", "value");
    sibling.Remove();
    expectTrue("the wait ended at a change of another key", !early);
}

void closingTheKeyEndsTheWait(SettingsStore &store)
{
    // Now before, now after the wait has begun.
    for (int yields = 0; yields < 100; ++yields) {
        SettingsStore::Key key = 0;
        expect("createKey", store.createKey(CurrentUserRoot, TestFolder, key), StoreCode::Success);
        std::int32_t code = -2;
        std::thread waiter([&] { code = store.waitForChange(key); });
        for (int i = 0; i < yields; ++i)
            std::this_thread::yield();
        const std::int32_t codeOfClose = store.closeKey(key);
        waiter.join();
        expect("closeKey", codeOfClose, StoreCode::Success);
        expect("status of the wait", code, StoreCode::InvalidHandle);
    }
}

void remove(SettingsStore &store, const std::string &path)
{
    const std::int32_t code = store.deleteKey(CurrentUserRoot, path);
    expectTrue("a key of the test could not be removed",
               code == StoreCode::Success || code == StoreCode::NotFound);
}

/// What a case has left, or one that failed.
void removeKeys(SettingsStore &store)
{
    for (const char *below : {"\\a\\b", "\\a", "\\Child", "\\Other", " 2", ""})
        remove(store, TestFolder + std::string(below));
}

} // namespace

const std::vector<StoreCase> &storeCases()
{
#define CASE(name)                                                                                 \
    {                                                                                              \
#name, name                                                                                \
    }
    static const std::vector<StoreCase> cases = {
        CASE(firstRunCreatesTheKeyAndItsParents),
        CASE(firstRunReadsNothingButDefaults),
        CASE(initOpensAKeyThatIsThere),
        CASE(absentTextReadsAsEmptyWhateverTheCallerHad),
        CASE(absentIntegerLeavesTheCallersValue),
        CASE(absentMultiSendTakesTheValueOfRicevuta),
        CASE(textsRoundTripUnchanged),
        CASE(everyByteRoundTrips),
        CASE(theStoredTextEndsInOneNul),
        CASE(queryAnswersWithTheSizeNeeded),
        CASE(integersRoundTrip),
        CASE(readIntOfALongTextAnswers234AndWritesNothing),
        CASE(readIntOfAShortTextReadsItsBytes),
        CASE(aValueTakesTheKindOfTheLastWrite),
        CASE(theDefaultValueHasNoName),
        CASE(deleteRemovesOneValue),
        CASE(namesAndPathsIgnoreCase),
        CASE(keysDoNotShareValues),
        CASE(twoObjectsSeeEachOthersWrites),
        CASE(removeTakesTheWholeKeyAway),
        CASE(removeLeavesAKeyWithKeysBelowIt),
        CASE(removeWithoutAKeyAnswersMinusOne),
        CASE(withoutAKeyNothingIsReadOrWritten),
        CASE(destructionReleasesTheKey),
        CASE(initAgainReleasesTheKeyBefore),
        CASE(emptyDefaultDocPathIsAsAbsent),
        CASE(settingAValueEndsTheWait),
        CASE(settingAValueToWhatItWasEndsTheWait),
        CASE(deletingAValueEndsTheWait),
        CASE(changesOfOtherKeysDoNotEndTheWait),
        CASE(closingTheKeyEndsTheWait),
    };
#undef CASE
    return cases;
}

void runStoreCase(const StoreCase &storeCase, SettingsStore &store)
{
    removeKeys(store);
    storeCase.run(store);
    removeKeys(store);
}
