// Turns the screens of the menu definition into the tree of menu items.
#pragma once

#include "menu/ScreenIndex.h"
#include "menu/TreeViewItem.h"

/// How often the screens of compartments and of meters are repeated.
struct RepeatCounts {
    int compartments = 0;
    int meters = 0;
};

/// Builds the tree whose root is defined by `root`, following references through `screens`. A
/// reference that names no screen is dropped; one that leads back to the screen that holds it, or
/// to one above that, is dropped with a warning, as is whatever goes beyond 200,000 items or 1,000
/// levels.
std::unique_ptr<TreeViewItem> buildTree(const QScriptValue &root, const ScreenIndex &screens,
    const RepeatCounts &counts, const PropertyNames &names);
