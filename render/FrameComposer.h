// One screen out of bars, menu page and box.
#pragma once

#include "render/Screen.h"
#include "render/ViewState.h"

/// The rows of the terminal: header bar, the page of menu lines that holds the selection, over its
/// middle the box of the current view, title bar. No row is wider than the terminal.
Frame composeFrame(const ViewState &state, const QString &title);

/// Where the text cursor of an edit field of `fieldLength` characters stands, kept on the terminal.
CursorPosition editPosition(const ViewState &state, int fieldLength);
