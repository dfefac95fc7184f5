// list-screen: lists of compartments or meters that do not repeat their screen.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

#include <QSet>

/// A list screen whose "screens" is missing or has entries.
Findings listScreenFindings(const LoadedMenu &menu, const TreeViewItem &item);

/// The css of each screen that a list screen repeats, or would repeat, were its "screens" empty.
QSet<QString> repeatedScreens(const LoadedMenu &menu);
