// The one place that starts the device's backend tool.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <csignal>

namespace BackendTool {

/// How long a tool may take, in milliseconds.
constexpr int patienceMs = 30000;

/// Runs `program` with `arguments`, one argv entry each and no shell, and returns what it printed
/// on standard output. A tool that cannot be started prints nothing; one that still runs after
/// `timeoutMs` is killed together with its own children, and what it printed until then is
/// returned. More than 16 MiB of output are taken as none, and so is the output of a tool that
/// `abandon` cut short.
QByteArray run(const QString &program, const QStringList &arguments, int timeoutMs = patienceMs);

/// From now on no tool is started, and a running one is killed at once. Safe in a signal handler.
void abandon() noexcept;

/// Kills the running tool, if any, without waiting for it. Safe in a signal handler.
void killRunning() noexcept;

/// The signal mask that tools are started with; as long as none is set they inherit the console's.
void setSignalMask(const sigset_t &mask);

} // namespace BackendTool
