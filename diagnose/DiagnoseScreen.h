// The live screens of the field interfaces: what they ask the backend and the frame around them.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/ViewState.h"

/// The diagnose screen that `item` opens, with what the backend reports now, as a box over the
/// whole of the terminal but its bars. An item that opens none, or no item, leaves the box empty.
/// On entering a screen that pages, sets the state to the first interface.
Frame diagnoseScreen(ViewState &state, TreeViewItemHandler &handler, const TreeViewItem *item);
