#pragma once

#include "cli/CliSurroundings.h"
#include "cli/CommandLine.h"

/// `check`: everything that Start would refuse or ask; nothing is sent.
[[nodiscard]] ExitCode check(const CheckOptions &options, const CliSurroundings &from);

/// `compose`: the message that a row would get alone, as it would be transferred.
[[nodiscard]] ExitCode compose(const ComposeOptions &options, const CliSurroundings &from);
