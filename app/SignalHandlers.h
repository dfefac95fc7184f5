// What the session does on signals.
#pragma once

class TerminalGui;

/// True once SIGINT has asked for the end of the session.
bool isSessionEnding() noexcept;

/// From now on every signal that ends the program, SIGINT included, first gives the terminal back
/// in a usable state: attributes, text cursor, colours. A signal that the caller of the program
/// ignores stays ignored. SIGPIPE is ignored, too.
void installRestoringHandlers();

/// SIGWINCH redraws `gui`, SIGINT ends the session; stopping and continuing hand the terminal over
/// and take it back. Fatal when a handler cannot be installed. A session that does not end within a
/// second of SIGINT is cut off, with the terminal restored and exit status 0.
void installSessionHandlers(TerminalGui &gui);

/// Tells that the session has ended by itself and is not to be cut off any more.
void concludeSession();
