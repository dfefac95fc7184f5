#include "app/SignalHandlers.h"

#include "app/TerminalGui.h"
#include "app/TerminalMode.h"
#include "device/BackendTool.h"

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

// A broken stack is one of the reasons to get here, so these handlers run on one of their own.
std::array<char, 65536> handlerStack;

// The actions from before the console's, to which a fatal signal is handed on.
std::array<struct sigaction, NSIG> formerActions;

// The script engine has a thread for its memory. A signal that the system gives to that one goes on
// to the session's, which waits for it or holds it back.
bool isForwarded(int number)
{
    if (pthread_equal(pthread_self(), sessionThread))
        return false;
    pthread_kill(sessionThread, number);
    return true;
}

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
    // There is nobody left to tell about a failure.
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
    // The instruction that failed fails again and shows the true cause; what was sent is sent
    // again.
    const bool isFault = info->si_code > 0 && info->si_code != SI_KERNEL;
    if (!isFault)
        raise(number);
}

// The session has not come to its end by itself: a script or a line is stuck.
void endNow(int)
{
    tcflush(STDOUT_FILENO, TCOFLUSH);
    TerminalMode::restore();
    writeNow("\x1b[0m\n\x1b[?25h\n\x1b[2J\n");
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
    if (isForwarded(number))
        return;
    switch (number) {
    case SIGINT:
        endSession();
        break;
    case SIGWINCH:
        terminalGui.load()->resizeTerminal();
        break;
    default:
        qDebug() << "Signal No." << number << " reived: no action defined!";
        break;
    }
}

void onContinue(int number)
{
    if (isForwarded(number))
        return;
    stopped = false;
    TerminalMode::resume();
    raise(SIGWINCH);
}

void onStop(int number)
{
    if (isForwarded(number))
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
    // Without a shell that could continue it, the system does not stop the program at all.
    if (stopped)
        onContinue(SIGCONT);
}

// No call is resumed behind these handlers: one that waits is to notice the end of the session.
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
    // A message to a reader that has gone is lost, not the session.
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
