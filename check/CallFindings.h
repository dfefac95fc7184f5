// no-tool, hanging-call, slow-call, no-array, no-tool-version: single calls of the backend tool.
#pragma once

#include "check/Finding.h"
#include "check/ToolCalls.h"

/// Why a call gave no JSON array, and a call that took too long.
Findings callFindings(const ToolCalls &calls, const QStringList &arguments);

/// A version that the bottom row cannot show.
Findings versionFindings(const ToolCalls &calls, const QStringList &arguments);
