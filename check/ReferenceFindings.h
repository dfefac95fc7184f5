// dangling-reference, no-template, self-reference, unreached, duplicate-css: ways between screens.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

#include <QSet>

/// References to screens that do not exist: in "screens", and to the screen that is to be repeated.
Findings referenceFindings(const LoadedMenu &menu, const QScriptValue &definition);

/// References of an item that lead back to its own screen or to one above it, but for those to a
/// css in `known`, which takes the others: a menu can lead to one screen on very many ways.
Findings selfReferenceFindings(
    const LoadedMenu &menu, const TreeViewItem &item, QSet<QString> &known);

/// Why a screen of the definition is nowhere in the tree; `repeated` has the css of those that
/// lists repeat.
Findings unreachedFindings(const LoadedMenu &menu, int screen, const QSet<QString> &repeated);
