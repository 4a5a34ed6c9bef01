#pragma once

#include "settings/SettingsStore.h"

#include <array>
#include <string_view>

/// The program's settings: their place, names, kinds and defaults.
namespace Settings {

/// Where they live below the current user's root.
inline constexpr char Folder[] = "Software\\Calvessa\\Sorvanta";

inline constexpr char Language[] = "Language";
inline constexpr char Server[] = "Server";
inline constexpr char Mittente[] = "Mittente";
inline constexpr char EmailMittente[] = "EmailMittente";
inline constexpr char Ricevuta[] = "Ricevuta";
inline constexpr char Cotrollo[] = "Cotrollo";
inline constexpr char nMsg[] = "nMsg";
inline constexpr char Pausa[] = "Pausa";
inline constexpr char MultiSend[] = "MultiSend";
inline constexpr char HTMLEditor[] = "HTMLEditor";
inline constexpr char TXTEditor[] = "TXTEditor";
inline constexpr char DefaultDocPath[] = "DefaultDocPath";

/// What an absent setting stands for.
enum class WhenAbsent {
    Text,          ///< the text of the table; an absent integer is 0
    ProgramFolder, ///< the program's folder followed by the text of the table
    Receipt,       ///< the value of "Ricevuta"
};

/// One line of the table.
struct Setting
{
    std::string_view name;
    ValueKind kind = ValueKind::Text;
    std::string_view absentText;
    WhenAbsent whenAbsent = WhenAbsent::Text;
};

inline constexpr std::array<Setting, 12> All{{
    {Language, ValueKind::Integer, {}},
    {Server, ValueKind::Text, {}},
    {Mittente, ValueKind::Text, {}},
    {EmailMittente, ValueKind::Text, {}},
    {Ricevuta, ValueKind::Integer, {}},
    {Cotrollo, ValueKind::Text, {}},
    {nMsg, ValueKind::Text, {}},
    {Pausa, ValueKind::Text, {}},
    {MultiSend, ValueKind::Integer, {}, WhenAbsent::Receipt},
    {HTMLEditor, ValueKind::Text, "\\htmledit.exe", WhenAbsent::ProgramFolder},
    {TXTEditor, ValueKind::Text, "notepad.exe"},
    {DefaultDocPath, ValueKind::Text, "C:\\Documenti Sorvanta\\"},
}};

/// The setting of that name, spelled exactly; nullptr when there is none.
[[nodiscard]] constexpr const Setting *find(std::string_view name)
{
    for (const Setting &setting : All) {
        if (setting.name == name)
            return &setting;
    }
    return nullptr;
}

/// The folder in which the file dialogs open: "DefaultDocPath", or its default when that is absent
/// or empty.
[[nodiscard]] std::string ReadDefaultDocPath(SettingsStore &store);
void SaveDefaultDocPath(SettingsStore &store, const std::string &path);

} // namespace Settings
