// --layout: the calls of the backend tool that a menu definition leads to, on paper.
#pragma once

#include "platform/DevicePaths.h"

#include <QStringList>

/// Every call that the console can make for the definition in `paths`, in the order of the menu,
/// with a row for each position of its values. No tool is run. The lines have at most 100 columns
/// and depend on nothing but their own screen, so that layouts can be compared.
QStringList menuLayout(const DevicePaths &paths);
