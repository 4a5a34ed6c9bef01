#pragma once

/// What the process tells its caller.
enum class ExitCode : int {
    Success = 0,     ///< all went well: every checked row was sent
    SomeRefused = 1, ///< the server refused some of the checked rows, or the test
    Refused = 2,     ///< nothing was begun, or the command was used wrongly
    SessionError = 3,
    Interrupted = 130, ///< paused or given up by Ctrl-C
};
