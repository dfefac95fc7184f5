// no-count, count-place, count-value: the numbers of compartments and meters.
#pragma once

#include "check/Finding.h"
#include "check/LoadedMenu.h"

/// A list of compartments or meters whose number nothing holds.
Findings listCountFindings(const LoadedMenu &menu, const TreeViewItem &item);

/// Numbers of compartments or meters that the console does not find on their screen.
Findings countScreenFindings(const LoadedMenu &menu, int screen);

/// A number of compartments or meters, at `place` of the answer, that is not from 0 to 999.
Findings countValueFindings(const QVariantList &answer, int place, const QString &field);
