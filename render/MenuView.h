// The menu's lines, one per shown item, and the page of them that is on the screen.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/Frame.h"

#include <optional>

/// The lines of `item` and of what is shown below it, for a terminal of `termColumns` columns. The
/// root of the tree has no line of its own. `note` receives how the last list value was found.
Frame menuLines(const TreeViewItemHandler &handler, const TreeViewItem &item, int termColumns,
    QString *note = nullptr);

/// The translation key, which may be empty, in a value that the backend marks as one ("i18n_key");
/// nothing for any other text, and for dates and positions, whose marks begin alike.
std::optional<QString> markedKey(const QString &text);

/// The column, from 0, at which values begin.
constexpr int valueColumn(int termColumns)
{
    return termColumns - termColumns / 3;
}

/// The number of the first menu line shown on a terminal of `termRows` rows: pages overlap by one
/// line.
int firstShownLine(int selectedIndex, int termRows);
