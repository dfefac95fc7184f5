#include "backend/BackendTool.h"

#include "platform/SignalBlocker.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>

#include <atomic>
#include <memory>
#include <optional>

#include <unistd.h>

namespace {

constexpr int maximumOutput = 16 * 1024 * 1024;
constexpr int maximumErrors = 64 * 1024;
constexpr int sliceMs = 50; // how soon a wait notices that the session is ending
constexpr int deathMs = 1000; // how long a killed tool may take to end

std::atomic<bool> abandoned(false);
std::atomic<pid_t> runningTool(0);
std::optional<sigset_t> toolMask;

static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<pid_t>::is_always_lock_free,
    "signal handlers use these");

// Signals are blocked so that no handler runs between the start and the storing of the pid.
std::unique_ptr<ToolProcess> start(
    const QString &program, const QStringList &arguments, ToolProcess::StandardError standardError)
{
    const SignalBlocker blocker(asynchronousSignals());
    auto tool = std::make_unique<ToolProcess>(
        program, arguments, toolMask.value_or(blocker.formerMask()), standardError);
    runningTool = tool->pid();
    return tool;
}

// False for a tool that runs as another user. The kill of its group may succeed all the same, when
// another process of the group could be signalled.
bool killTool(pid_t tool) noexcept
{
    // kill(0) would signal our own group, kill(-1) every process.
    if (tool <= 1)
        return false;
    kill(-tool, SIGKILL);
    return kill(tool, SIGKILL) == 0;
}

void endTool(ToolProcess &tool)
{
    if (!killTool(tool.pid()))
        return;
    const QDeadlineTimer death(deathMs);
    while (tool.isRunning() && !death.hasExpired())
        tool.wait(int(death.remainingTime()), ToolProcess::End);
}

// Measures a run in laps of at most `sliceMs`. A longer one means that this program was stopped.
class RunTime {
public:
    RunTime() { lap.start(); }

    void endLap()
    {
        constexpr qint64 longestNs = 4LL * sliceMs * 1000000;
        elapsedNs += qMin(lap.nsecsElapsed(), longestNs);
        lap.start();
    }
    qint64 elapsedUs() const { return elapsedNs / 1000; }
    int remainingMs(int timeoutMs) const { return timeoutMs - int(elapsedNs / 1000000); }

private:
    QElapsedTimer lap;
    qint64 elapsedNs = 0;
};

ToolRun runTool(const QString &program, const QStringList &arguments, int timeoutMs,
    ToolProcess::StandardError standardError)
{
    if (abandoned)
        return { {}, {}, 0, { ToolEnd::Abandoned, 0 } };
    RunTime time;
    const auto tool = start(program, arguments, standardError);
    QByteArray output;
    QByteArray errors;
    while (tool->isRunning() && time.remainingMs(timeoutMs) > 0 && !abandoned
        && output.size() <= maximumOutput) {
        tool->wait(qMin(sliceMs, time.remainingMs(timeoutMs)));
        tool->takeOutput(output);
        tool->takeErrors(errors);
        errors.truncate(maximumErrors);
        time.endLap();
    }
    const bool isTimedOut = tool->isRunning();
    if (isTimedOut)
        endTool(*tool);
    runningTool = 0;
    while (output.size() <= maximumOutput && tool->takeOutput(output)) { }
    while (errors.size() < maximumErrors && tool->takeErrors(errors)) { }
    if (abandoned)
        return { {}, errors, time.elapsedUs(), { ToolEnd::Abandoned, 0 } };
    if (output.size() > maximumOutput)
        return { {}, errors, time.elapsedUs(), { ToolEnd::PrintedTooMuch, 0 } };
    const ToolEnd end = isTimedOut ? ToolEnd { ToolEnd::TimedOut, 0 } : tool->end();
    return { output, errors, time.elapsedUs(), end };
}

} // namespace

QByteArray BackendTool::run(const QString &program, const QStringList &arguments, int timeoutMs)
{
    return runTool(program, arguments, timeoutMs, ToolProcess::Discarded).output;
}

ToolRun BackendTool::observedRun(
    const QString &program, const QStringList &arguments, int timeoutMs)
{
    return runTool(program, arguments, timeoutMs, ToolProcess::Kept);
}

void BackendTool::abandon() noexcept
{
    abandoned = true;
}

void BackendTool::killRunning() noexcept
{
    killTool(runningTool);
}

void BackendTool::setSignalMask(const sigset_t &mask)
{
    toolMask = mask;
}
