// What the arrow and page keys move: the selected line of the menu, the chosen entry of a list, the
// value of a slider, the cursor of a text, the shown interface.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/ViewState.h"

/// Moves the index of the current view by `delta` steps and keeps it within its bounds: the
/// vertical limit is exclusive, the horizontal one inclusive. The menu only moves vertically; the
/// cursor of an edit field goes as far as the end of the text. Elsewhere it empties `overlayLines`.
void moveSelection(
    ViewState &state, const TreeViewItemHandler &handler, bool horizontal, int delta);
