// Moving within a menu, a list, a slider or a text.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/ViewState.h"

/// Moves the current view's index by `delta` steps and keeps it within its bounds: the vertical
/// limit is exclusive, the horizontal one inclusive. In the menu only vertical moves count; in an
/// edit field the cursor goes no further than right behind the text.
void moveSelection(
    ViewState &state, const TreeViewItemHandler &handler, bool horizontal, int delta);
