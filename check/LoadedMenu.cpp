#include "check/LoadedMenu.h"

#include "menu/TreeBuilder.h"
#include "render/MenuView.h"
#include "render/ViewState.h"

namespace {

void expandAll(TreeViewItem &item)
{
    item.expanded = true;
    for (const auto &child : item.children)
        expandAll(*child);
}

} // namespace

LoadedMenu::LoadedMenu(const DevicePaths &paths)
    : paths(paths)
    , handler(paths)
    , settings(handler.scriptHelper().load())
    , screens(settings, handler.names())
    , root(buildTree(settings.property(0), screens, { 1, 1 }, handler.names()))
{
    handler.setAccessLevel(TreeViewItemHandler::openAccessLevel);
}

QStringList menuOutline(LoadedMenu &menu)
{
    expandAll(*menu.root);
    const Frame lines = menuLines(menu.handler, *menu.root, standardColumns);
    QStringList shown;
    for (const QString &text : lines)
        shown.push_back(QString::fromLatin1(text.toLatin1()));
    return shown;
}
