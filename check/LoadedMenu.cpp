#include "check/LoadedMenu.h"

#include "check/FileFindings.h"
#include "check/QuietMessages.h"
#include "locale/CTranslationHandler.h"
#include "menu/TreeBuilder.h"
#include "render/MenuView.h"
#include "render/ViewState.h"

namespace {

// What the console logs about the script is reported as findings.
QScriptValue loadQuietly(TreeViewItemHandler &handler)
{
    const QuietMessages quiet;
    return handler.scriptHelper().load();
}

bool canLoad(const QString &table)
{
    QVariantMap texts;
    return CTranslationHandler::loadJsonMap(table, texts);
}

QScriptValue globalSettings(TreeViewItemHandler &handler)
{
    return handler.scriptHelper().scriptEngine().globalObject().property(
        QStringLiteral("Settings"));
}

} // namespace

LoadedMenu::LoadedMenu(const DevicePaths &paths, const ToolRunner &runTool)
    : paths(paths)
    , handler(paths, runTool)
    , settings(loadQuietly(handler))
    , global(globalSettings(handler))
    , screens(settings, handler.names())
    , hasTable(canLoad(translationTable(paths.webRoot)))
    , root(buildTree(settings.property(0), screens, { 1, 1 }, handler.names()))
{
    handler.setAccessLevel(TreeViewItemHandler::openAccessLevel);
}

void LoadedMenu::repeatScreens(const RepeatCounts &counts)
{
    root = buildTree(settings.property(0), screens, counts, handler.names());
}

void expandAll(TreeViewItem &item)
{
    item.expanded = true;
    for (const auto &child : item.children)
        expandAll(*child);
}

QStringList menuOutline(LoadedMenu &menu)
{
    const QuietMessages quiet;
    expandAll(*menu.root);
    const Frame lines = menuLines(menu.handler, *menu.root, standardColumns);
    QStringList shown;
    for (const QString &text : lines)
        shown.push_back(QString::fromLatin1(text.toLatin1()));
    return shown;
}
