// The rules for typed input: what an edit field accepts and how long it is.
#pragma once

#include "menu/TreeViewItemHandler.h"

#include <optional>

/// The integer that the whole of `text` stands for: a sign or none, then digits. Nothing for any
/// other text and for numbers beyond 64 bits.
std::optional<qint64> strictInteger(const QString &text);

bool hasValidation(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// The rule of the item, such as "C20" or "N5".
QString validation(const TreeViewItemHandler &handler, const TreeViewItem &item);

bool hasRange(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// The lowest (`index` 0) or highest (1) number that the item takes; 0 when it tells none.
qint64 rangeValue(const TreeViewItemHandler &handler, const TreeViewItem &item, int index);

/// The number of characters that the item's input may have; 0 when its rule tells none.
int fieldLength(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// True when the item's rule accepts `text`; without a rule nothing is accepted.
bool validateInput(
    const TreeViewItemHandler &handler, const TreeViewItem &item, const QString &text);
