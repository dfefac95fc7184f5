#include "check/LoadedMenu.h"

#include "menu/TreeBuilder.h"
#include "render/MenuView.h"

namespace {

constexpr int openSealLevel = 6;
constexpr int terminalColumns = 80;

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
    , root(buildTree(settings.property(0), screens, { 1, 1 }, handler))
{
    handler.setAccessLevel(openSealLevel);
}

QStringList menuOutline(LoadedMenu &menu)
{
    expandAll(*menu.root);
    Frame lines;
    int count = 0;
    QString note;
    MenuRenderer(menu.handler, terminalColumns, note).renderItemLines(*menu.root, count, lines);
    QStringList shown;
    for (const QString &text : qAsConst(lines))
        shown.push_back(QString::fromLatin1(text.toLatin1()));
    return shown;
}
