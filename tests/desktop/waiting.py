"""Waiting for something to become true, and no longer than a person would."""

import time

# No single thing takes longer, on a busy machine with sanitizers either.
PATIENCE = 30
INTERVAL = 0.02


class Gone(Exception):
    """What was asked has gone meanwhile, as a control of a window that closed."""


def until(what, condition, patience=PATIENCE):
    """Waits until the condition holds, and returns what it gave."""
    end = time.monotonic() + patience
    while True:
        try:
            result = condition()
        except Gone:
            result = None
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain: {what() if callable(what) else what}")
        time.sleep(INTERVAL)
