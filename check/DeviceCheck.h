// The report on a device's answers to a menu definition.
#pragma once

#include "check/LoadedMenu.h"
#include "check/ToolCalls.h"

enum class DeviceExtent {
    Values, ///< what the menu shows
    Everything ///< versions and interface screens as well
};

/// Reads everything of `extent` from the device by `calls`, with which `menu` was made. The tree
/// then has the device's compartments and meters and all values, and everything in it is opened.
/// Nothing is written: calls with words that a screen writes with are not made.
void readDevice(LoadedMenu &menu, ToolCalls &calls, DeviceExtent extent);

/// The problems of the answers to `calls`, in the form of `menuProblems`, after everything was read
/// by them.
QStringList deviceProblems(LoadedMenu &menu, const ToolCalls &calls);

/// The calls that failed, so that values are missing, one a line.
QStringList failedCalls(const ToolCalls &calls);

/// The number of calls and the slowest five, one a line; nothing when there was none.
QStringList callSummary(const ToolCalls &calls);
