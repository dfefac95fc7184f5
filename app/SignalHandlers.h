// What the program does on signals. docs/architecture.md has a table of them.
#pragma once

class TerminalGui;

/// True once the session is ending: no tool is started any more, no byte is waited for.
bool isSessionEnding() noexcept;

/// Comes first in the program. From now on every signal that ends the program first kills the tool
/// and restores the terminal (attributes, text cursor, colours), and says so on standard error;
/// SIGINT ends the session. A signal that was ignored when the program started stays ignored, but
/// for SIGINT. Unblocks the signals that are handled, blocks SIGWINCH and ignores SIGPIPE; tools
/// still start with the mask that the program started with.
void installEndingHandlers();

/// SIGWINCH redraws `gui`, SIGTSTP restores the terminal before it stops the program, and SIGCONT
/// switches it again. Fatal when the handler of SIGWINCH or SIGINT cannot be installed.
void installSessionHandlers(TerminalGui &gui);

/// Starts the idle time anew. When it is over and the terminal takes no output, so that the event
/// loop cannot notice, the session is cut off a second later.
void startIdleTime(int idleMs) noexcept;

/// Ends the session: leaves the event loop and kills the tool. A session that has not come to its
/// end within a second is cut off, with the terminal restored and exit status 0.
void endSession() noexcept;

/// The session has come to its end and is no longer cut off.
void concludeSession() noexcept;
