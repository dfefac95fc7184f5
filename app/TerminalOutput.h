// Writing to the terminal.
#pragma once

#include <QByteArray>

/// Writes all of `bytes` to standard output, however long that takes. On an error, as after a
/// hang-up, the rest is dropped.
void writeToTerminal(const QByteArray &bytes);
