// untranslated, unshowable, no-label, wide-label: texts on the screen.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// Texts of a visible item that have no translation, cannot be shown on a Latin-1 terminal or reach
/// into the values.
Findings textFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A value of the device that cannot be shown as a text.
Findings textValueFindings(const QVariant &value);
