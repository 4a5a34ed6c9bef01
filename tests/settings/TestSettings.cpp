#include "TestSettings.h"

#include "settings/Settings.h"

#include <QTest>

#include <string>

using namespace std::string_view_literals;

void TestSettings::tableHoldsEverySettingInItsKind()
{
    std::string table;
    for (const auto &setting : Settings::All) {
        table += setting.name;
        table += setting.kind == ValueKind::Integer ? ":integer " : ":text ";
    }
    QCOMPARE(table.c_str(),
             "Language:integer Server:text Mittente:text EmailMittente:text Ricevuta:integer "
             "Cotrollo:text nMsg:text Pausa:text MultiSend:integer HTMLEditor:text "
             "TXTEditor:text DefaultDocPath:text ");
    QCOMPARE(Settings::Folder, "Software\\Calvessa\\Sorvanta");
}

void TestSettings::defaultsAreThoseOfTheTable()
{
    using Settings::WhenAbsent;
    QCOMPARE(Settings::find("TXTEditor")->absentText, "notepad.exe"sv);
    QCOMPARE(Settings::find("HTMLEditor")->absentText, "\\htmledit.exe"sv);
    QVERIFY(Settings::find("HTMLEditor")->whenAbsent == WhenAbsent::ProgramFolder);
    QCOMPARE(Settings::find("DefaultDocPath")->absentText, "C:\\Documenti Sorvanta\\"sv);
    QVERIFY(Settings::find("MultiSend")->whenAbsent == WhenAbsent::Receipt);
    for (const char *name : {"Server", "Mittente", "EmailMittente", "Cotrollo", "nMsg", "Pausa"}) {
        QCOMPARE(Settings::find(name)->absentText, ""sv);
        QVERIFY(Settings::find(name)->whenAbsent == WhenAbsent::Text);
    }
}

void TestSettings::unknownNameIsNotFound()
{
    QVERIFY(Settings::find("Controllo") == nullptr);
    QVERIFY(Settings::find("server") == nullptr);
    QVERIFY(Settings::find("") == nullptr);
}
