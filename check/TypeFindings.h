// unknown-input-type, unknown-type: words that the console does not know.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// Unknown words of "inputType" and "type".
Findings typeFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
