#pragma once

#include "base/Language.h"
#include "form/Controls.h"

#include <QString>

/// Where a run stands, as the window shows it.
enum class RunState {
    Idle,    ///< no run
    Waiting, ///< the countdown to the next packet runs
    Sending, ///< a packet is being sent
    Paused,
};

/// Whether the control can be used in that state. The two lists are read-only when they are not
/// enabled.
[[nodiscard]] bool isEnabled(Control control, RunState state);

/// The tag of cmdPausa, which is its caption too: what the button would do, or did last.
[[nodiscard]] QString pauseWord(RunState state, Language language);

/// Whether the packet countdown (Timer) runs in that state.
[[nodiscard]] constexpr bool countsDown(RunState state)
{
    return state == RunState::Waiting;
}

/// Whether the clock of the run (Timer2) runs in that state.
[[nodiscard]] constexpr bool showsTime(RunState state)
{
    return state == RunState::Waiting || state == RunState::Sending;
}

/// A name for traces.
[[nodiscard]] const char *nameOf(RunState state);
