// no-read, dead-read, hidden-read, no-write, quotes, empty-words, same-words, exchanged-words:
// "ajax-read" and "ajax-write".
#pragma once

#include "check/CallWords.h"
#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// Values of a visible item's children that are not read or not stored.
Findings bindingFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// An "ajax-read" of a screen that every reference hides.
Findings hiddenReadFindings(const TreeViewItemHandler &handler, const TreeViewItem &screen);

/// Words of a screen that the tool cannot understand, or that write when they are to read.
Findings wordFindings(
    const TreeViewItemHandler &handler, const CallWords &words, const TreeViewItem &item);
