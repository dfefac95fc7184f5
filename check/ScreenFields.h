// The fields of a screen as the console reads and writes them.
#pragma once

#include "menu/TreeViewItemHandler.h"

using Fields = QVector<const TreeViewItem *>;

/// Those that have a value in the answers of the tool, in their order.
inline Fields fieldsWithValue(const TreeViewItemHandler &handler, const TreeViewItem &screen)
{
    Fields fields;
    for (const auto &child : screen.children) {
        if (handler.isValueBearing(*child))
            fields += child.get();
    }
    return fields;
}

/// The first one whose dialog leads to a write of the screen's values; null when there is none with
/// the present access level.
inline const TreeViewItem *changeableField(
    const TreeViewItemHandler &handler, const TreeViewItem &screen)
{
    for (const auto &child : screen.children) {
        if (handler.writeBinding(screen) && handler.isVisible(*child) && handler.isEditable(*child))
            return child.get();
    }
    return nullptr;
}
