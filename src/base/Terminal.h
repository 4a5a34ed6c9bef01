#pragma once

#include <cstdio>

/// Whether somebody watches: the stream is a terminal and not a file or a pipe.
[[nodiscard]] bool isTerminal(std::FILE *stream);
