// The door through which bytes reach the terminal.
#pragma once

#include <QByteArray>

/// Writes all of `bytes` to standard output, waiting as long as it takes. What a closed line does
/// not take is dropped.
void writeToTerminal(const QByteArray &bytes);
