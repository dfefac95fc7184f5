// --write-back: whether a tool keeps what the console writes.
#pragma once

#include "check/ToolCalls.h"
#include "platform/DevicePaths.h"

struct WriteBackReport {
    QStringList problems; ///< in the form of `menuProblems`
    QString summary; ///< how many screens were written
};

/// Writes the values of each screen that the console can write back to the tool of `paths`, as the
/// tool has just answered them, and reads all these screens again. A screen whose values cannot be
/// read completely is not written. `progress` is called before each run of the tool.
WriteBackReport writeBack(
    const DevicePaths &paths, CallTrace &trace, const ToolCalls::Progress &progress = {});
