// The menu's lines, one per shown item, and the page of them that is on the screen.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/Frame.h"

/// Renders menu items for a terminal of `termColumns` columns. `statusText` is left with a note on
/// how the last list value was resolved.
class MenuRenderer {
public:
    MenuRenderer(const TreeViewItemHandler &handler, int termColumns, QString &statusText);

    /// Adds the lines of `item` and of what is shown below it to `target`, numbered from `line`
    /// on, which is advanced. The root has `depth` 0 and no line of its own.
    void renderItemLines(const TreeViewItem &item, int &line, Frame &target, int depth = 0,
        bool isFirstChild = false);

private:
    QString itemLine(const TreeViewItem &item, int depth, bool isFirstChild);
    QString marker(const TreeViewItem &item) const;
    QString label(const TreeViewItem &item) const;
    QString valueText(const TreeViewItem &item);
    QString listText(const TreeViewItem &item);

    const TreeViewItemHandler &handler;
    const int termColumns;
    QString &statusText;
};

/// The number of the first menu line shown on a terminal of `termRows` rows: pages overlap by one
/// line.
int firstShownLine(int selectedIndex, int termRows);
