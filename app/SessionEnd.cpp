#include "app/SessionEnd.h"

#include "app/TerminalExit.h"
#include "backend/BackendTool.h"

#include <QCoreApplication>

#include <atomic>
#include <cstdlib>
#include <ctime>

#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr qint64 graceMs = 1000; // between the end of a session and its being cut off
// A call that begins to block right after SIGINT does not notice it, so SIGALRM follows repeatedly.
constexpr qint64 repeatMs = 50;

std::atomic<bool> ending(false);
std::atomic<qint64> idleEnd(0); // this and the next in milliseconds of the monotonic clock
std::atomic<qint64> graceEnd(0);

static_assert(std::atomic<qint64>::is_always_lock_free, "signal handlers use these");

qint64 now() noexcept
{
    timespec time = {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

// Sends SIGALRM after `ms` milliseconds, never for 0.
void startTimer(qint64 ms) noexcept
{
    itimerval timer = {};
    timer.it_value.tv_sec = time_t(ms / 1000);
    timer.it_value.tv_usec = suseconds_t(ms % 1000 * 1000);
    setitimer(ITIMER_REAL, &timer, nullptr);
}

void cutOff() noexcept
{
    BackendTool::killRunning();
    leaveTerminalCleared();
    _exit(EXIT_SUCCESS);
}

} // namespace

bool isSessionEnding() noexcept
{
    return ending;
}

void startIdleTime(int idleMs) noexcept
{
    // The timer is set once; when it is over, it is set anew for what is left by then.
    const bool isFirst = idleEnd.exchange(now() + idleMs) == 0;
    if (isFirst && !ending)
        startTimer(idleMs);
}

void endSession() noexcept
{
    if (ending)
        return;
    graceEnd = now() + graceMs;
    ending = true;
    BackendTool::abandon();
    startTimer(repeatMs);
    QCoreApplication::quit();
}

void concludeSession() noexcept
{
    startTimer(0);
}

void watchSession() noexcept
{
    const qint64 left = (ending ? graceEnd : idleEnd) - now();
    if (left > 0)
        startTimer(ending ? repeatMs : left);
    else if (ending)
        cutOff();
    else
        endSession();
}
