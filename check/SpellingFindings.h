// misspelled-attribute, unknown-input-type, unknown-type: names and words that the console does not
// know.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// Attributes of an item, and of the reference to it, that the console does not read but whose
/// names are close to one that it does.
Findings spellingFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// Unknown words of "inputType" and "type".
Findings typeFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
