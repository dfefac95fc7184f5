#include "check/OwnProcess.h"

#include "platform/SignalBlocker.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned patienceSeconds = 30;

volatile pid_t worker = 0;
volatile std::sig_atomic_t passedOn = 0;

void passOn(int number)
{
    passedOn = number;
    kill(worker, number);
}

// Waits for the work. SIGINT and SIGQUIT end it first and then this process: a shell must not
// prompt while the work still writes to the terminal.
int waitForWork()
{
    constexpr std::array<int, 2> keys = { SIGINT, SIGQUIT };
    std::array<decltype(SIG_DFL), 2> former;
    for (size_t i = 0; i < keys.size(); ++i) {
        former[i] = std::signal(keys[i], passOn);
        if (former[i] == SIG_IGN)
            std::signal(keys[i], SIG_IGN);
    }
    int end = 0;
    while (waitpid(worker, &end, 0) < 0 && errno == EINTR) { }
    for (size_t i = 0; i < keys.size(); ++i)
        std::signal(keys[i], former[i]);
    if (passedOn != 0)
        std::raise(passedOn);
    return end;
}

} // namespace

bool WorkEnd::hasCrashed() const
{
    constexpr std::array<int, 6> crashes = { SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGALRM };
    return std::find(crashes.cbegin(), crashes.cend(), signal) != crashes.cend();
}

WorkEnd doInOwnProcess(const std::function<int()> &work)
{
    std::signal(SIGCHLD, SIG_DFL); // while it is ignored, the end of a child is lost
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGTERM, SIG_DFL);
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        std::signal(SIGALRM, SIG_DFL);
        const sigset_t ends = signalSet({ SIGTERM, SIGALRM });
        pthread_sigmask(SIG_UNBLOCK, &ends, nullptr);
        alarm(patienceSeconds);
        _exit(getppid() == parent ? work() : 0);
    }
    if (child < 0)
        return {};
    worker = child;
    const int end = waitForWork();
    return WIFEXITED(end) ? WorkEnd { WEXITSTATUS(end), 0 } : WorkEnd { -1, WTERMSIG(end) };
}

void takeTime()
{
    alarm(0);
}

QString crashText(const QString &path, const WorkEnd &end)
{
    if (end.signal == SIGALRM) {
        return QStringLiteral(
            "the script %1 did not end within %2 s; the console would wait for it "
            "without end, so correct its loops")
            .arg(path)
            .arg(patienceSeconds);
    }
    return QStringLiteral("the script engine crashes (signal %1) on %2, and the console with it; "
                          "avoid endless recursion and deep nesting in the script")
        .arg(QString::number(end.signal), path);
}
