// What the session does on signals.
#pragma once

class TerminalGui;

/// True once SIGINT has ended the session.
bool isSessionEnding() noexcept;

/// From now on every signal that ends the program, SIGINT included, first restores the terminal:
/// attributes, text cursor, colours. A signal that was ignored when the program started stays
/// ignored. SIGPIPE is ignored as well, and SIGWINCH blocked; tools still start with the mask that
/// the program started with.
void installRestoringHandlers();

/// SIGWINCH redraws `gui`, SIGINT ends the session, SIGTSTP restores the terminal before it stops
/// the program, and SIGCONT switches it again. Fatal when a handler cannot be installed. A session
/// that does not end within a second of SIGINT is cut off, with the terminal restored and exit
/// status 0.
void installSessionHandlers(TerminalGui &gui);

/// The session has ended by itself: it is no longer cut off.
void concludeSession();
