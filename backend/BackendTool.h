// The one place that starts the device's backend tool.
#pragma once

#include "backend/ToolProcess.h"

/// What a run of the tool left.
struct ToolRun {
    QByteArray output; ///< what `BackendTool::run` returns
    QByteArray errors; ///< the first 64 KiB of standard error
    qint64 durationUs; ///< in microseconds, without the time that this program was stopped
    ToolEnd end;
};

namespace BackendTool {

/// How long a tool may take, in milliseconds. While the console is stopped, time does not count.
constexpr int patienceMs = 30000;

/// Runs `program` with `arguments`, one argv entry each and no shell, and returns its standard
/// output; nothing when it cannot be started. A tool that still runs after `timeoutMs` is killed
/// with its process group, and its output until then is returned; one that cannot be killed,
/// because it runs as another user, is left alone and reaped later. More than 16 MiB of output
/// count as none, and so does the output of a tool that `abandon` cut off.
QByteArray run(const QString &program, const QStringList &arguments, int timeoutMs = patienceMs);

/// As `run`, for those who want to know more: it keeps standard error, which `run` discards, and
/// how the run ended.
ToolRun observedRun(
    const QString &program, const QStringList &arguments, int timeoutMs = patienceMs);

/// From now on no tool is started, and a running one is killed at once. Async-signal-safe.
void abandon() noexcept;

/// Kills the running tool, if any, without waiting for its end. Async-signal-safe.
void killRunning() noexcept;

/// Sets the signal mask that tools are started with; by default it is the console's own.
void setSignalMask(const sigset_t &mask);

} // namespace BackendTool
