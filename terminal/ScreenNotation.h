// Rows of a terminal as text, with their numbers, colours and the cursor: "     4 :Limits  <-
// magenta".
#pragma once

#include "terminal/TerminalEmulator.h"

/// What the 0-based rows show: a line for each run of alike rows.
QStringList notationOfRows(const TerminalEmulator &terminal, const std::set<int> &rows);
/// What all rows show.
QStringList notationOfScreen(const TerminalEmulator &terminal);
