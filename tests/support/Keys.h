// The bytes that a terminal sends for keys.
#pragma once

#include <QByteArray>

namespace Key {
const QByteArray up = "\x1b[A";
const QByteArray down = "\x1b[B";
const QByteArray right = "\x1b[C";
const QByteArray left = "\x1b[D";
const QByteArray pageUp = "\x1b[5~";
const QByteArray pageDown = "\x1b[6~";
const QByteArray home = "\x1b[H"; ///< no key of the console: only has it draw anew
const QByteArray enter = "\n";
const QByteArray escape = "\x1b\x1b";
const QByteArray backspace = "\x7f";
const QByteArray interrupt = "\x03";
} // namespace Key
