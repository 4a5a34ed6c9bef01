#pragma once

#include "cli/CliSurroundings.h"
#include "cli/CommandLine.h"

/// `settings`: lists, reads or sets the settings. An absent one shows what it stands for.
[[nodiscard]] ExitCode settings(const SettingsOptions &options, const CliSurroundings &from);
