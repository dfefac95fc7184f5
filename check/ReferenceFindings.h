// dangling-reference, no-template, self-reference, unreached, duplicate-css: ways between screens.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

/// References to screens that do not exist: in "screens", and to the screen that is to be repeated.
Findings referenceFindings(const LoadedMenu &menu, const QScriptValue &definition);

/// References of an item that lead back to its own screen or to one above it.
Findings selfReferenceFindings(const LoadedMenu &menu, const TreeViewItem &item);

/// Why a screen of the definition is nowhere in the tree.
Findings unreachedFindings(const LoadedMenu &menu, int screen);
