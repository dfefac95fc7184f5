// Where the program's messages go, so that none appears on the screen.
#pragma once

/// Sends all messages to standard error or, where that is a terminal, to the system log; a fatal
/// one to standard error in any case.
void installMessageLog();
