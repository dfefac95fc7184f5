#include "backend/ToolProcess.h"

#include <QFile>
#include <QVector>

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Programs that ran longer than their ToolProcess lived.
QVector<pid_t> unreaped;

void reapOthers()
{
    const auto isReaped = [](pid_t pid) { return waitpid(pid, nullptr, WNOHANG) != 0; };
    unreaped.erase(std::remove_if(unreaped.begin(), unreaped.end(), isReaped), unreaped.end());
}

void closeEnd(int &descriptor)
{
    if (descriptor >= 0)
        close(descriptor);
    descriptor = -1;
}

struct Pipe {
    explicit Pipe(bool isWanted = true)
    {
        std::array<int, 2> ends = { -1, -1 };
        if (isWanted && pipe2(ends.data(), O_CLOEXEC) == 0) {
            readEnd = ends[0];
            writeEnd = ends[1];
        }
    }

    int readEnd = -1;
    int writeEnd = -1;
};

class Surroundings {
public:
    Surroundings(int input, int output, int errors, const sigset_t &signalMask)
    {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
        if (errors >= 0)
            posix_spawn_file_actions_adddup2(&files, errors, STDERR_FILENO);
        else
            posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setsigmask(&attributes, &signalMask);
        // The console ignores SIGPIPE and may have inherited SIGCHLD as ignored; few programs cope.
        sigset_t unignored;
        sigemptyset(&unignored);
        sigaddset(&unignored, SIGPIPE);
        sigaddset(&unignored, SIGCHLD);
        posix_spawnattr_setsigdefault(&attributes, &unignored);
        // In the console's process group, Ctrl-Z could stop the program before it is started, and
        // the console would wait for that start for ever. The group of a session of its own is
        // orphaned: stops by the terminal are discarded.
        posix_spawnattr_setflags(
            &attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }

    ~Surroundings()
    {
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&files);
    }

    Q_DISABLE_COPY(Surroundings)

    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
};

bool takeFrom(int &descriptor, QByteArray &bytes)
{
    if (descriptor < 0)
        return false;
    std::array<char, 16384> buffer;
    const ssize_t length = read(descriptor, buffer.data(), buffer.size());
    if (length > 0)
        bytes.append(buffer.data(), int(length));
    else if (length == 0)
        closeEnd(descriptor);
    return length > 0;
}

// Returns the error number, 0 when the program was started.
int start(pid_t &pid, const QString &program, const QStringList &arguments,
    const Surroundings &surroundings)
{
    QByteArrayList words { QFile::encodeName(program) };
    for (const QString &argument : arguments)
        words += argument.toLocal8Bit();
    QVector<char *> argv;
    for (QByteArray &word : words)
        argv += word.data();
    argv += nullptr;
    return posix_spawnp(
        &pid, argv.first(), &surroundings.files, &surroundings.attributes, argv.data(), environ);
}

} // namespace

ToolProcess::ToolProcess(const QString &program, const QStringList &arguments,
    const sigset_t &signalMask, StandardError standardError)
{
    reapOthers();
    Pipe input;
    Pipe output;
    Pipe errors(standardError == Kept);
    int error = EMFILE;
    if (input.readEnd >= 0 && output.readEnd >= 0) {
        error = start(child, program, arguments,
            { input.readEnd, output.writeEnd, errors.writeEnd, signalMask });
    }
    closeEnd(input.readEnd);
    closeEnd(output.writeEnd);
    closeEnd(errors.writeEnd);
    inputEnd = input.writeEnd;
    outputEnd = output.readEnd;
    errorEnd = errors.readEnd;
    for (const int end : { outputEnd, errorEnd }) {
        if (end >= 0)
            fcntl(end, F_SETFL, O_NONBLOCK);
    }
    running = error == 0;
    if (running)
        pidfd = int(syscall(SYS_pidfd_open, child, 0)); // glibc 2.36 declares it for C only
    else
        child = 0;
    toolEnd = { running ? ToolEnd::Exited : ToolEnd::NotStarted, error };
}

ToolProcess::~ToolProcess()
{
    closeEnd(inputEnd);
    closeEnd(outputEnd);
    closeEnd(errorEnd);
    closeEnd(pidfd);
    if (child > 0 && waitpid(child, nullptr, WNOHANG) == 0)
        unreaped += child;
}

void ToolProcess::wait(int timeoutMs, Awaited awaited)
{
    const bool isEnd = awaited == End;
    std::array<pollfd, 3> events = { { { isEnd ? -1 : outputEnd, POLLIN, 0 },
        { isEnd ? -1 : errorEnd, POLLIN, 0 }, { pidfd, POLLIN, 0 } } };
    // Linux before 5.3 has no pidfd: look again every millisecond.
    poll(events.data(), events.size(), pidfd >= 0 ? timeoutMs : qMin(timeoutMs, 1));
    // With SIGCHLD ignored an ended child is reaped at once, and waitid fails.
    siginfo_t end = {};
    const int result = waitid(P_PID, id_t(child), &end, WEXITED | WNOHANG | WNOWAIT);
    running = result == 0 && end.si_pid == 0;
    if (result == 0 && !running)
        toolEnd = { end.si_code == CLD_EXITED ? ToolEnd::Exited : ToolEnd::Signalled,
            end.si_status };
}

bool ToolProcess::takeOutput(QByteArray &output)
{
    return takeFrom(outputEnd, output);
}

bool ToolProcess::takeErrors(QByteArray &errors)
{
    return takeFrom(errorEnd, errors);
}
