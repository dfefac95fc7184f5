#include "app/SignalHandlers.h"

#include "app/SessionEnd.h"
#include "app/TerminalExit.h"
#include "app/TerminalGui.h"
#include "app/TerminalMode.h"
#include "backend/BackendTool.h"
#include "platform/SignalBlocker.h"
#include "platform/WriteAtOnce.h"

#include <QCoreApplication>
#include <QDebug>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <unistd.h>

namespace {

std::atomic<TerminalGui *> terminalGui(nullptr);
std::atomic<bool> stopped(false);
std::atomic<bool> continued(false); // SIGCONT came; nothing has been redrawn since

// After an overflow of the stack, the handlers need another one.
std::array<char, 65536> handlerStack;

// The actions before the console's, under which a fatal signal takes effect.
std::array<struct sigaction, NSIG> formerActions;

// A handler must not change the errno of the code that it interrupts.
class ErrnoKeeper {
public:
    ErrnoKeeper() = default;
    ~ErrnoKeeper() { errno = kept; }
    Q_DISABLE_COPY(ErrnoKeeper)

private:
    const int kept = errno;
};

// No SA_RESTART: a blocked read or write must return and notice the end of the session. SIGWINCH is
// unblocked while the reader waits; it must not interrupt another handler with a redraw. Of signals
// that came while the program was stopped, those that end the session are handled before SIGCONT.
bool setHandler(int number, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_mask = signalSet({ SIGWINCH });
    if (number == SIGINT || number == SIGALRM)
        sigaddset(&action.sa_mask, SIGCONT);
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
    static const sigset_t others = signalSet(
        { SIGKILL, SIGSTOP, SIGTSTP, SIGTTIN, SIGTTOU, SIGCONT, SIGCHLD, SIGURG, SIGWINCH });
    return !sigismember(&others, number);
}

void reportDeath(int number) noexcept
{
    char text[] = "Dravikon was ended by signal 00.\n";
    char *digit = text + sizeof text - 5;
    if (number >= 10)
        *digit++ = char('0' + number / 10);
    *digit++ = char('0' + number % 10);
    *digit++ = '.';
    *digit++ = '\n';
    writeAtOnce(STDERR_FILENO, text, size_t(digit - text));
}

void restoreAndDie(int number, siginfo_t *info, void *)
{
    BackendTool::killRunning();
    leaveTerminalAtLastRow();
    reportDeath(number);
    sigaction(number, &formerActions[size_t(number)], nullptr);
    // A fault recurs when the instruction is retried under the former action; any other signal must
    // be raised again, and is pending until this handler returns.
    const bool isFault = info->si_code > 0 && !sigismember(&asynchronousSignals(), number);
    if (!isFault)
        raise(number);
}

void onAlarm(int)
{
    const ErrnoKeeper keeper;
    watchSession();
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
    if (isSessionEnding())
        return;
    continued = true;
    TerminalMode::resume();
    raise(SIGWINCH);
}

void onStop(int)
{
    const ErrnoKeeper keeper;
    leaveTerminalAtLastRow();
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

// On failure fatal with a fixed text; `line` belongs to it and is no line of this file.
void installHandler(int number, int line)
{
    if (!setHandler(number, onSignal))
        qFatal(
            "ERR - %s(%d): An error occurred while setting a signal handler.\n", "main.cpp", line);
}

} // namespace

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
