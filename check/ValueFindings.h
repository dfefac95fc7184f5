// few-values, many-values, boolean-value, and the findings of other values by the kind of field.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// More or fewer values than the screen has entries for.
Findings lengthFindings(
    const TreeViewItemHandler &handler, const TreeViewItem &screen, const QVariantList &answer);

/// A value that the item cannot show, or that its dialog does not offer.
Findings valueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
