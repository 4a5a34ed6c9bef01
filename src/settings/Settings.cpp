#include "settings/Settings.h"

#include "settings/IOReg.h"

std::string Settings::ReadDefaultDocPath(SettingsStore &store)
{
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Folder);
    std::string path;
    reg.ReadStr(DefaultDocPath, path);
    return path.empty() ? std::string(find(DefaultDocPath)->absentText) : path;
}

void Settings::SaveDefaultDocPath(SettingsStore &store, const std::string &path)
{
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Folder);
    reg.WriteStr(DefaultDocPath, path);
}
