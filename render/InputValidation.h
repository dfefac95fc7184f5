// The rules for typed input: what an edit field accepts and how long it is.
#pragma once

#include "menu/TreeViewItemHandler.h"

#include <optional>

bool hasValidation(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// The rule of the item, such as "C20" or "N5".
QString validation(const TreeViewItemHandler &handler, const TreeViewItem &item);

bool hasRange(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// The lowest (`index` 0) or highest (1) number that the item takes; 0 when it has none.
qint64 rangeValue(const TreeViewItemHandler &handler, const TreeViewItem &item, int index);

/// An item's rule, taken apart.
struct InputRule {
    enum Kind { Refusing, Text, Number }; ///< Refusing accepts no text at all
    Kind kind = Refusing;
    /// The most characters; nothing unless a whole number follows the letter. A rule without it,
    /// such as "N5.2" for decimals, refuses every text, too.
    std::optional<qint64> length;
};

InputRule inputRule(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// The number of characters by which the item's field is centred; 0 when its rule has none.
int fieldLength(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// True when the item's rule accepts `text`; without a rule nothing is accepted.
bool validateInput(
    const TreeViewItemHandler &handler, const TreeViewItem &item, const QString &text);
