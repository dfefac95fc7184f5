// list-screen: lists of compartments or meters that do not repeat their screen.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

/// A list screen whose "screens" is missing or has entries.
Findings listScreenFindings(const LoadedMenu &menu, const TreeViewItem &item);

/// True if a list screen would repeat the screen `css`, were its "screens" empty.
bool isMeantForRepetition(const LoadedMenu &menu, const QString &css);
