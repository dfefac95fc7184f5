#include "app/SignalHandlers.h"

#include "app/TerminalGui.h"
#include "app/TerminalMode.h"
#include "app/TerminalOutput.h"
#include "backend/BackendTool.h"
#include "platform/SignalBlocker.h"
#include "platform/WriteAtOnce.h"
#include "render/Screen.h"

#include <QCoreApplication>
#include <QDebug>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>

#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr qint64 graceMs = 1000; // between the end of a session and its being cut off
// A call that begins to block right after SIGINT does not notice it, so SIGALRM follows repeatedly.
constexpr qint64 repeatMs = 50;

std::atomic<TerminalGui *> terminalGui(nullptr);
std::atomic<bool> ending(false);
std::atomic<bool> stopped(false);
std::atomic<bool> continued(false); // and not drawn since
std::atomic<qint64> idleEnd(0); // this and the next in milliseconds of the monotonic clock
std::atomic<qint64> graceEnd(0);

static_assert(std::atomic<qint64>::is_always_lock_free, "signal handlers use these");

// A stack overflow is one of the reasons to get here, so these handlers run on their own stack.
std::array<char, 65536> handlerStack;

// The actions before the console's, under which a fatal signal takes effect.
std::array<struct sigaction, NSIG> formerActions;

// A handler must not change the errno of the code that it interrupts.
class ErrnoKeeper {
public:
    ErrnoKeeper() = default;
    ~ErrnoKeeper() { errno = kept; }
    ErrnoKeeper(const ErrnoKeeper &) = delete;
    ErrnoKeeper &operator=(const ErrnoKeeper &) = delete;

private:
    const int kept = errno;
};

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

// No SA_RESTART: a blocked read or write must return and notice the end of the session. SIGWINCH,
// open while the reader waits, must not interrupt another handler with a redraw.
bool setHandler(int number, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_mask = signalSet({ SIGWINCH });
    return sigaction(number, &action, nullptr) == 0;
}

bool isIgnored(int number)
{
    struct sigaction action = {};
    sigaction(number, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

bool endsProcess(int number)
{
    switch (number) {
    case SIGKILL:
    case SIGSTOP:
    case SIGTSTP:
    case SIGTTIN:
    case SIGTTOU:
    case SIGCONT:
    case SIGCHLD:
    case SIGURG:
    case SIGWINCH:
        return false;
    default:
        return true;
    }
}

// Restores the attributes and writes `text`, unless the terminal is not the session's: before its
// start, after its end, or while a shell has taken the terminal back.
template <size_t size> void leaveTerminal(const char (&text)[size]) noexcept
{
    const pid_t foreground = tcgetpgrp(STDIN_FILENO);
    if (!TerminalMode::isActive() || (foreground > 0 && foreground != getpgrp()))
        return;
    tcflush(STDOUT_FILENO, TCOFLUSH);
    TerminalMode::restore();
    writeAtOnce(STDOUT_FILENO, text, size - 1);
}

void reportDeath(int number) noexcept
{
    char text[] = "\nDravikon was ended by signal 00.\n";
    constexpr size_t digits = sizeof text - 5;
    text[digits] = char('0' + number / 10);
    text[digits + 1] = char('0' + number % 10);
    writeAtOnce(STDERR_FILENO, text, sizeof text - 1);
}

void restoreAndDie(int number, siginfo_t *info, void *)
{
    BackendTool::killRunning();
    leaveTerminal("\x1b[?25h\x1b[0m");
    reportDeath(number);
    sigaction(number, &formerActions[size_t(number)], nullptr);
    // A fault recurs when the instruction is retried under the former action; any other signal must
    // be raised again, and is pending until this handler returns.
    const bool isFault = info->si_code > 0 && !sigismember(&asynchronousSignals(), number);
    if (!isFault)
        raise(number);
}

// The session does not end by itself: a script does not return, or the terminal takes no output.
void cutOff()
{
    BackendTool::killRunning();
    leaveTerminal(leaveSequence);
    _exit(EXIT_SUCCESS);
}

void onAlarm(int)
{
    const ErrnoKeeper keeper;
    const qint64 left = (ending ? graceEnd : idleEnd) - now();
    if (left <= 0 && (ending || isWritingToTerminal()))
        cutOff();
    startTimer(ending ? repeatMs : qMax(left, graceMs));
}

void onSignal(int number)
{
    const ErrnoKeeper keeper;
    switch (number) {
    case SIGINT:
        endSession();
        break;
    case SIGWINCH:
        if (continued.exchange(false))
            terminalGui.load()->resumeTerminal();
        else
            terminalGui.load()->resizeTerminal();
        break;
    default:
        // A fixed text, its misspelling included.
        qDebug() << "Signal No." << number << " reived: no action defined!";
        break;
    }
}

void onContinue(int)
{
    const ErrnoKeeper keeper;
    stopped = false;
    continued = true;
    TerminalMode::resume();
    raise(SIGWINCH);
}

void onStop(int)
{
    const ErrnoKeeper keeper;
    leaveTerminal("\x1b[?25h\x1b[0m");
    stopped = true;
    setHandler(SIGTSTP, SIG_DFL);
    raise(SIGTSTP);
    const sigset_t stop = signalSet({ SIGTSTP });
    pthread_sigmask(SIG_UNBLOCK, &stop, nullptr);
    setHandler(SIGTSTP, onStop);
    // In an orphaned process group SIGTSTP is discarded, so no SIGCONT will follow.
    if (stopped)
        onContinue(SIGCONT);
}

// Fatal with a fixed text, in which `line` is no current line of the source.
void installHandler(int number, int line)
{
    if (!setHandler(number, onSignal))
        qFatal(
            "ERR - %s(%d): An error occurred while setting a signal handler.\n", "main.cpp", line);
}

} // namespace

bool isSessionEnding() noexcept
{
    return ending;
}

void installEndingHandlers()
{
    sigset_t mask;
    pthread_sigmask(SIG_SETMASK, nullptr, &mask);
    BackendTool::setSignalMask(mask);
    stack_t stack = {};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    sigaltstack(&stack, nullptr);
    struct sigaction action = {};
    action.sa_sigaction = restoreAndDie;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    action.sa_mask = asynchronousSignals();
    for (int number = 1; number < NSIG; ++number) {
        if (!endsProcess(number))
            continue;
        sigdelset(&mask, number);
        if (!isIgnored(number))
            sigaction(number, &action, &formerActions[size_t(number)]);
    }
    // A message whose reader has gone is lost, but does not end the session.
    setHandler(SIGPIPE, SIG_IGN);
    setHandler(SIGINT, onSignal);
    setHandler(SIGALRM, onAlarm);
    sigdelset(&mask, SIGTSTP);
    sigdelset(&mask, SIGCONT);
    sigaddset(&mask, SIGWINCH);
    pthread_sigmask(SIG_SETMASK, &mask, nullptr);
}

void installSessionHandlers(TerminalGui &gui)
{
    terminalGui = &gui;
    installHandler(SIGWINCH, 109);
    installHandler(SIGINT, 112);
    setHandler(SIGCONT, onContinue);
    if (!isIgnored(SIGTSTP))
        setHandler(SIGTSTP, onStop);
}

void startIdleTime(int idleMs) noexcept
{
    // The timer is set once; when it is over, it is set anew for what is left by then.
    const bool isFirst = idleEnd.exchange(now() + idleMs + graceMs) == 0;
    if (isFirst && !ending)
        startTimer(idleMs + graceMs);
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
