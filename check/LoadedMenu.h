// A menu definition, loaded as the console loads it.
#pragma once

#include "menu/ScreenIndex.h"
#include "menu/TreeViewItemHandler.h"

/// The screens and the tree of the definition. Making it runs no tool: the tree has one compartment
/// and one meter, and its items are as editable as with the electronic seal open.
struct LoadedMenu {
    explicit LoadedMenu(const DevicePaths &paths, const ToolRunner &runTool = {});

    /// Builds the tree anew, with other numbers of compartments and meters.
    void repeatScreens(const RepeatCounts &counts);

    const DevicePaths paths;
    TreeViewItemHandler handler;
    const QScriptValue settings; ///< as the settings script defines it; an error when it fails
    const QScriptValue global; ///< the script's global `Settings`
    const ScreenIndex screens;
    const bool hasTable; ///< there are English texts
    std::unique_ptr<TreeViewItem> root;
};

/// Opens everything from `item` down.
void expandAll(TreeViewItem &item);

/// The lines of the whole menu, every item opened, as a Latin-1 terminal of 80 columns shows them.
QStringList menuOutline(LoadedMenu &menu);
