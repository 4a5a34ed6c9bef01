#pragma once

#include "cli/CliSurroundings.h"
#include "cli/CommandLine.h"

/// `account`: lists, reads or sets what is kept about a server.
[[nodiscard]] ExitCode account(const AccountOptions &options, const CliSurroundings &from);
