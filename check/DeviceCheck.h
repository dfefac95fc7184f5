// The report on a device's answers to a menu definition.
#pragma once

#include "check/LoadedMenu.h"
#include "check/ToolCalls.h"

enum class DeviceExtent {
    Values, ///< what the menu shows
    Everything ///< versions and interface screens as well
};

/// Asks the device, through the tool that `menu` was given, all that the console can ask to show
/// `extent`. The tree then has the device's compartments and meters and all values, everything
/// opened. Nothing is written.
void readDevice(LoadedMenu &menu, ToolCalls &calls, DeviceExtent extent);

/// The problems of the answers, in the form of `menuProblems`.
QStringList deviceProblems(LoadedMenu &menu, const ToolCalls &calls);

/// Why values are missing: the calls that failed, one a line.
QStringList failedCalls(const ToolCalls &calls);

/// The number of calls and the slowest five, one a line.
QStringList callSummary(const ToolCalls &calls);
