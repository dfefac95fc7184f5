// no-read, dead-read, hidden-read, no-write: "ajax-read" and "ajax-write" that are missing or idle.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// Values of a visible item's children that are not read or not stored.
Findings bindingFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// An "ajax-read" of a screen that every reference hides.
Findings hiddenReadFindings(const TreeViewItemHandler &handler, const TreeViewItem &screen);
