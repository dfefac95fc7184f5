#include "backend/BackendTool.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <atomic>
#include <optional>

#include <unistd.h>

namespace {

constexpr int maximumOutput = 16 * 1024 * 1024;
constexpr int sliceMs = 50; // how soon a wait notices that the session is ending

std::atomic<bool> abandoned(false);
std::atomic<pid_t> runningTool(0);
std::optional<sigset_t> toolMask;

static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<pid_t>::is_always_lock_free,
    "signal handlers use these");

class ToolProcess : public QProcess {
protected:
    // Its own process group, so that whatever the tool has started dies with it.
    void setupChildProcess() override
    {
        setpgid(0, 0);
        if (toolMask)
            sigprocmask(SIG_SETMASK, &*toolMask, nullptr);
    }
};

} // namespace

QByteArray BackendTool::run(const QString &program, const QStringList &arguments, int timeoutMs)
{
    if (abandoned)
        return {};
    const QDeadlineTimer deadline(timeoutMs);
    ToolProcess tool;
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(program, arguments, QIODevice::ReadWrite);
    runningTool = pid_t(tool.processId());

    QByteArray output;
    while (tool.state() != QProcess::NotRunning && !deadline.hasExpired() && !abandoned
        && output.size() <= maximumOutput) {
        tool.waitForReadyRead(int(qMin<qint64>(sliceMs, deadline.remainingTime())));
        output += tool.readAllStandardOutput();
    }
    if (tool.state() != QProcess::NotRunning) {
        killRunning();
        tool.waitForFinished();
    }
    runningTool = 0;
    return abandoned || output.size() > maximumOutput ? QByteArray() : output;
}

void BackendTool::abandon() noexcept
{
    abandoned = true;
}

bool BackendTool::isAbandoned() noexcept
{
    return abandoned;
}

void BackendTool::killRunning() noexcept
{
    const pid_t tool = runningTool;
    // 0 and 1 would stand for whole crowds of processes.
    if (tool > 1 && kill(-tool, SIGKILL) != 0)
        kill(tool, SIGKILL);
}

void BackendTool::setSignalMask(const sigset_t &mask)
{
    toolMask = mask;
}
