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
const QByteArray redraw = "\x1b[y"; ///< sent by no key of any terminal: only causes a redraw
const QByteArray enter = "\n";
const QByteArray escape = "\x1b\x1b";
const QByteArray backspace = "\x7f";
const QByteArray interrupt = "\x03";
} // namespace Key
