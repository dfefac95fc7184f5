// Which screens the console writes.
#pragma once

#include "menu/TreeViewItemHandler.h"

/// The first field of `screen` whose dialog leads to a write of the screen's values; null when
/// there is none with the present access level.
inline const TreeViewItem *changeableField(
    const TreeViewItemHandler &handler, const TreeViewItem &screen)
{
    for (const auto &child : screen.children) {
        if (handler.writeBinding(screen) && handler.isVisible(*child) && handler.isEditable(*child))
            return child.get();
    }
    return nullptr;
}
