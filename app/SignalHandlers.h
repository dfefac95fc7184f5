// What the program does on signals. docs/architecture.md has a table of them.
#pragma once

class TerminalGui;

/// Comes first in the program. From now on every signal that ends the program first kills the tool
/// and restores the terminal (attributes, text cursor, colours), and says so on standard error;
/// SIGINT ends the session. A signal that was ignored when the program started stays ignored, but
/// for SIGINT. Unblocks the signals that are handled, blocks SIGWINCH and ignores SIGPIPE; tools
/// still start with the mask that the program started with.
void installEndingHandlers();

/// SIGWINCH redraws `gui`, SIGTSTP restores the terminal before it stops the program, and SIGCONT
/// switches it again. Fatal when the handler of SIGWINCH or SIGINT cannot be installed.
void installSessionHandlers(TerminalGui &gui);
