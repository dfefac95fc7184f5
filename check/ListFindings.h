// no-values, value-count, equal-values, empty-value, integer-list, wide-option, list-value: lists
// and their choices.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// Choices of a list that cannot be shown or told apart.
Findings listFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A value of the device for which its list has no text.
Findings listValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
