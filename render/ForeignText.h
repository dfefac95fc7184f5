// The door through which text from files, the backend and the keyboard enters a line.
#pragma once

#include <QString>

/// `text` with a blank in place of every control character, so that nothing foreign can move the
/// cursor or switch the terminal.
QString printable(const QString &text);
