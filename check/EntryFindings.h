// entry-type, entry-screens, list-screen: the entries of screens.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

#include <QSet>

/// Entries of "Settings.settings" that are no objects.
Findings settingsFindings(const LoadedMenu &menu);

/// Entries in the "screens" of a definition that are no objects.
Findings entryFindings(const LoadedMenu &menu, const QScriptValue &definition);

/// Entries of a field, which cannot have any.
Findings fieldEntryFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A list screen whose "screens" is missing or has entries.
Findings listScreenFindings(const LoadedMenu &menu, const TreeViewItem &item);

/// The css of each screen that a list screen repeats, or would repeat, were its "screens" empty.
QSet<QString> repeatedScreens(const LoadedMenu &menu);
