// The dialogs that roll a list under a fixed highlight: start menu, list and boolean selector.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/ViewState.h"

/// Each returns its box and, when it is opened, sets the list's bounds and its chosen entry.
Frame startMenu(ViewState &state);
Frame listSelector(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item);
Frame booleanSelector(ViewState &state, const TreeViewItem &item);
