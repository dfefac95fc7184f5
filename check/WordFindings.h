// quotes, empty-words, same-words, exchanged-words: what "ajax-read" and "ajax-write" call.
#pragma once

#include "check/CallWords.h"
#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// Words of a screen that the tool cannot understand, or that write when they are to read.
Findings wordFindings(
    const TreeViewItemHandler &handler, const CallWords &words, const TreeViewItem &item);
