// One screen out of bars, menu page and box.
#pragma once

#include "render/ViewState.h"

/// The rows of the terminal: header bar, the page of menu lines with the selection, the box of the
/// current view over its middle, title bar. No row is wider than the terminal.
Frame composeFrame(const ViewState &state, const QString &title);
