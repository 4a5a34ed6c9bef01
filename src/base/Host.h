#pragma once

#include <QString>

/// The computer's name, as it stands in message identifiers.
[[nodiscard]] QString computerName();
