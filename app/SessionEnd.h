// When a session ends: the idle time, and what becomes of a session that does not get to its end.
#pragma once

#include <QtGlobal>

/// True once the session is ending: no tool is started any more, no byte is waited for.
bool isSessionEnding() noexcept;

/// Starts the idle time anew, in milliseconds. When it is over, the session ends as by
/// `endSession`, also while it waits for the rest of a key, a script does not return or the
/// terminal takes no output.
void startIdleTime(int idleMs) noexcept;

/// Ends the session: leaves the event loop and kills the tool. A session that has not come to its
/// end within a second is cut off, with the terminal restored and exit status 0. Async-signal-safe,
/// as far as QCoreApplication::quit() is.
void endSession() noexcept;

/// The session has come to its end and is no longer cut off.
void concludeSession() noexcept;

/// To be called on SIGALRM, which the functions above have sent to the process.
void watchSession() noexcept;
