// no-validation, no-range, range, dead-rule, narrow-rule, edit-value: edit fields and their rules.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// Why an edit field refuses every text, or an end of its range.
Findings editFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A value of the device that its own field refuses.
Findings editValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
