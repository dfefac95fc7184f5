// A terminal's screen as an SVG picture.
#pragma once

#include "tests/support/TerminalEmulator.h"

/// The screen with its colours and its text cursor. The same screen gives the same bytes.
QByteArray svgOf(const TerminalEmulator &terminal);
