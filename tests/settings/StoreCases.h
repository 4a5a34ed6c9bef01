#pragma once

#include "settings/SettingsStore.h"

#include <vector>

/// What every store must do, in plain C++: the same cases run wherever a store runs.
struct StoreCase
{
    const char *name;
    /// Throws std::runtime_error, which says what is wrong. Works only below TestFolder, which is
    /// not there at its beginning.
    void (*run)(SettingsStore &store);
};

/// The key that the cases may fill and remove.
inline constexpr char TestFolder[] = "Software\\Calvessa\\Sorvanta Test";

[[nodiscard]] const std::vector<StoreCase> &storeCases();

/// Runs one case on a store without the test's keys, and removes what it left.
void runStoreCase(const StoreCase &storeCase, SettingsStore &store);
