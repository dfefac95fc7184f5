// entry-type, entry-screens: entries that are neither references nor fields.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

/// Entries of "Settings.settings" that are no objects.
Findings settingsFindings(const LoadedMenu &menu);

/// Entries in the "screens" of a definition that are no objects.
Findings entryFindings(const LoadedMenu &menu, const QScriptValue &definition);

/// Entries of a field, which cannot have any.
Findings fieldEntryFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
