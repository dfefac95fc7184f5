// A terminal's screen as an SVG picture.
#pragma once

#include "terminal/TerminalEmulator.h"

/// The screen with its colours and its text cursor. The same screen gives the same bytes.
QByteArray svgOf(const TerminalEmulator &terminal);
