#include "app/SignalHandlers.h"

#include "app/TerminalGui.h"
#include "app/TerminalMode.h"
#include "device/BackendTool.h"
#include "device/SignalBlocker.h"
#include "render/Screen.h"

#include <QCoreApplication>
#include <QDebug>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>

#include <pthread.h>
#include <unistd.h>

namespace {

std::atomic<TerminalGui *> terminalGui(nullptr);
std::atomic<bool> ending(false);
std::atomic<bool> stopped(false);
pthread_t sessionThread;

constexpr std::array<int, 10> endingSignals = { SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGSEGV, SIGABRT,
    SIGBUS, SIGFPE, SIGILL, SIGSYS };

// A stack overflow is one of the reasons to get here, so these handlers run on their own stack.
std::array<char, 65536> handlerStack;

// The actions before the console's, under which a fatal signal takes effect.
std::array<struct sigaction, NSIG> formerActions;

// The script engine has a thread of its own, to which the kernel may deliver a signal. Forwards it
// to the session's thread; false on that thread itself.
bool forwardToSession(int number)
{
    if (pthread_equal(pthread_self(), sessionThread))
        return false;
    pthread_kill(sessionThread, number);
    return true;
}

// No SA_RESTART: a blocked read or write must return and notice the end of the session.
bool setHandler(int number, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    return sigaction(number, &action, nullptr) == 0;
}

bool isIgnored(int number)
{
    struct sigaction action = {};
    sigaction(number, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

template <size_t size> void writeNow(const char (&text)[size]) noexcept
{
    // Nobody is left to whom a failure could be reported.
    [[maybe_unused]] const ssize_t written = write(STDOUT_FILENO, text, size - 1);
}

void leaveTerminal() noexcept
{
    TerminalMode::restore();
    writeNow("\x1b[?25h\x1b[0m");
}

void restoreAndDie(int number, siginfo_t *info, void *)
{
    leaveTerminal();
    BackendTool::killRunning();
    sigaction(number, &formerActions[size_t(number)], nullptr);
    // A fault recurs when the instruction is retried under the former action; a sent signal must
    // be raised again.
    const bool isFault = info->si_code > 0 && info->si_code != SI_KERNEL;
    if (!isFault)
        raise(number);
}

// The session does not end by itself: a script does not return, or the terminal takes no output.
void endNow(int)
{
    tcflush(STDOUT_FILENO, TCOFLUSH);
    TerminalMode::restore();
    writeNow(leaveSequence);
    BackendTool::killRunning();
    _exit(EXIT_SUCCESS);
}

void endSession()
{
    constexpr unsigned graceSeconds = 1;
    if (ending.exchange(true))
        return;
    BackendTool::abandon();
    alarm(graceSeconds);
    QCoreApplication::quit();
}

void onSignal(int number)
{
    if (forwardToSession(number))
        return;
    switch (number) {
    case SIGINT:
        endSession();
        break;
    case SIGWINCH:
        terminalGui.load()->resizeTerminal();
        break;
    default:
        // A fixed text, its misspelling included.
        qDebug() << "Signal No." << number << " reived: no action defined!";
        break;
    }
}

void onContinue(int number)
{
    if (forwardToSession(number))
        return;
    stopped = false;
    TerminalMode::resume();
    raise(SIGWINCH);
}

void onStop(int number)
{
    if (forwardToSession(number))
        return;
    leaveTerminal();
    stopped = true;
    setHandler(SIGTSTP, SIG_DFL);
    sigset_t stop;
    sigemptyset(&stop);
    sigaddset(&stop, SIGTSTP);
    raise(SIGTSTP);
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

void installRestoringHandlers()
{
    const sigset_t resize = signalSet({ SIGWINCH });
    sigset_t callersMask;
    pthread_sigmask(SIG_BLOCK, &resize, &callersMask);
    BackendTool::setSignalMask(callersMask);
    sessionThread = pthread_self();
    stack_t stack = {};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    sigaltstack(&stack, nullptr);
    for (const int number : endingSignals) {
        if (isIgnored(number))
            continue;
        struct sigaction action = {};
        action.sa_sigaction = restoreAndDie;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
        sigemptyset(&action.sa_mask);
        sigaction(number, &action, &formerActions[size_t(number)]);
    }
    // A message whose reader has gone is lost, but does not end the session.
    setHandler(SIGPIPE, SIG_IGN);
}

void installSessionHandlers(TerminalGui &gui)
{
    terminalGui = &gui;
    installHandler(SIGWINCH, 109);
    installHandler(SIGINT, 112);
    setHandler(SIGALRM, endNow);
    setHandler(SIGCONT, onContinue);
    if (!isIgnored(SIGTSTP))
        setHandler(SIGTSTP, onStop);
}

void concludeSession()
{
    alarm(0);
}
