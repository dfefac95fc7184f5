// A position in the values of a screen, as --layout prints it.
#pragma once

#include "menu/TreeViewItemHandler.h"

/// The columns of the row of `item`, each a list of lines: `position`, translation key, English
/// text, kind with marks, and what the console accepts or knows to show. The access level becomes
/// that of an open seal.
QVector<QStringList> layoutRow(
    TreeViewItemHandler &handler, const TreeViewItem &item, int position);
