// Giving the terminal back where the session does not come to its normal end.
#pragma once

// Both restore the attributes and write at once what the terminal takes at once; output that waits
// is discarded. They do nothing while the terminal is not the session's: before its start, after
// its end, and while a shell has taken the terminal back. Async-signal-safe.

/// Leaves the terminal cleared, as the normal end does.
void leaveTerminalCleared() noexcept;

/// Leaves the screen as it is, with the cursor on the last row, which is cleared for what the shell
/// writes next.
void leaveTerminalAtLastRow() noexcept;
