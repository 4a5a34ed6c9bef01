#pragma once

#include "cli/CliSurroundings.h"
#include "cli/CommandLine.h"

/// `compose`: the message that a row would get alone, as it would be transferred.
[[nodiscard]] ExitCode compose(const ComposeOptions &options, const CliSurroundings &from);
