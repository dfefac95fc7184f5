// The dialog in which a text is typed.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/ViewState.h"

/// Returns the box, its field green while the item accepts the text and red while not. On opening
/// takes the item's value over as the text, with the cursor behind it, and the field length from
/// the item's rule.
Frame editDialog(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item);
