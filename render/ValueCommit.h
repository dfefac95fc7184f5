// From the state of a confirmed dialog to the item's new value.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/ViewState.h"

/// Gives the item on menu line `index` the value chosen in its dialog, in the type of its input
/// kind. False, and the item unchanged, when there is no such item, when it is of a kind that is
/// not edited, or when its rule refuses the text.
bool commitValue(const ViewState &state, const TreeViewItemHandler &handler, int index);
