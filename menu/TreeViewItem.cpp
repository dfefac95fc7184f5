#include "menu/TreeViewItem.h"

TreeViewItem::TreeViewItem(const QScriptValue &definition, const QScriptValue &referringEntry,
    TreeViewItem *parentItem, int index, int position)
    : definition(definition)
    , referringEntry(referringEntry)
    , parentItem(parentItem)
    , index(index)
    , position(position)
{
}

TreeViewItem &TreeViewItem::addChild(
    const QScriptValue &definition, const QScriptValue &referringEntry, int index)
{
    children.push_back(std::make_unique<TreeViewItem>(
        definition, referringEntry, this, index, int(children.size())));
    return *children.back();
}
