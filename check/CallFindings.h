// hanging-call, slow-call, no-array, tool-end, write-call, no-tool-version: calls of the tool.
#pragma once

#include "check/Finding.h"
#include "check/ToolCalls.h"

/// Why a call was not made or gave no JSON array, and one that took too long or ended badly.
Findings callFindings(const ToolCalls &calls, const QStringList &arguments);

/// A version that the bottom row cannot show.
Findings versionFindings(const ToolCalls &calls, const QStringList &arguments);
