// One node of the menu tree.
#pragma once

#include <QObject>
#include <QScriptValue>
#include <QVariant>

#include <memory>
#include <vector>

/// A screen or a field of the menu definition. Its attributes are read from the definition when
/// they are asked for, through the queries of TreeViewItemHandler.
class TreeViewItem : public QObject {
public:
    TreeViewItem(const QScriptValue &definition, const QScriptValue &referringEntry,
        TreeViewItem *parentItem, int index, int position);

    /// Appends a child; this item owns it.
    TreeViewItem &addChild(
        const QScriptValue &definition, const QScriptValue &referringEntry, int index);

    QVariant value; ///< as last read from the backend or chosen by the user; invalid before
    bool expanded = false; ///< the children are shown below the item
    const QScriptValue definition;
    const QScriptValue referringEntry; ///< invalid for the root and for inline fields
    TreeViewItem *const parentItem; ///< null for the root
    const int index; ///< 0-based number of the compartment or meter; -1 outside of these
    const int position; ///< 0-based place among the parent's children
    std::vector<std::unique_ptr<TreeViewItem>> children;
};
