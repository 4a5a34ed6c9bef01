#pragma once

/// What the process tells its caller.
enum class ExitCode : int {
    Success = 0,     ///< all went well: every checked row was sent
    SomeRefused = 1, ///< some of the checked rows were refused or are in doubt, or the test refused
    Refused = 2,     ///< nothing was begun, or the command was used wrongly
    SessionError = 3,  ///< the session failed, or the run could not be kept or told of
    Interrupted = 130, ///< paused or given up by Ctrl-C
};
