// hanging-call, slow-call, no-array, tool-end, write-call, no-tool-version, seal-status: calls of
// the tool, and the answers to those that every menu needs.
#pragma once

#include "check/Finding.h"
#include "check/ToolCalls.h"

#include <QVariantList>

/// Why a call was not made or gave no JSON array, and one that took too long or ended badly.
Findings callFindings(const ToolCalls &calls, const QStringList &arguments);

/// A version that the bottom row cannot show.
Findings versionFindings(const ToolCalls &calls, const QStringList &arguments);

/// A seal status that is neither open nor closed.
Findings sealFindings(const QVariantList &answer);
