#include "terminal/PtyProcess.h"

#include <QFile>
#include <QVector>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utmp.h>

namespace {

bool isReadable(int descriptor, int timeoutMs)
{
    pollfd request = { descriptor, POLLIN, 0 };
    return poll(&request, 1, timeoutMs) > 0 && (request.revents & POLLIN);
}

QByteArray readProc(pid_t process, const char *name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Files that a kernel need not have, and without which a busy process would look at rest.
bool canObserveProcesses()
{
    for (const char *const name : { "stat", "schedstat" }) {
        if (readProc(getpid(), name).isEmpty())
            return false;
    }
    return QFile::exists(QStringLiteral("/proc/%1/task/%1/children").arg(getpid()));
}

bool isSleeping(pid_t process)
{
    const QByteArray text = readProc(process, "stat");
    return text.contains(") S ") || text.contains(") T ");
}

bool hasChildren(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/task/%1/children").arg(process));
    return file.open(QIODevice::ReadOnly) && !file.readAll().isEmpty();
}

} // namespace

bool operator==(const ExitStatus &left, const ExitStatus &right)
{
    return left.state == right.state && left.value == right.value;
}

char *toString(const ExitStatus &status)
{
    static const char *const states[] = { "running ", "exited ", "killed " };
    return qstrdup(states[status.state] + QByteArray::number(status.value));
}

PtyProcess::~PtyProcess()
{
    kill();
    close(master);
    close(slave);
}

bool PtyProcess::start(const QString &program, const QStringList &arguments, int rows, int columns)
{
    static const bool canObserve = canObserveProcesses();
    if (!canObserve)
        qFatal("/proc lacks stat, schedstat or children, which tell when a program is at rest");
    if (child > 0 || openpty(&master, &slave, nullptr, nullptr, nullptr) != 0)
        return false;
    fcntl(master, F_SETFD, FD_CLOEXEC);
    fcntl(master, F_SETFL, O_NONBLOCK);
    fcntl(slave, F_SETFD, FD_CLOEXEC);
    setSize(rows, columns);

    const QString words = (QStringList(program) + arguments).join(QChar::Null);
    QByteArrayList texts = words.toLocal8Bit().split('\0');
    QVector<char *> argv;
    for (QByteArray &text : texts)
        argv += text.data();
    argv += nullptr;

    child = fork();
    if (child == 0) {
        const int parentError = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
        login_tty(slave);
        dup2(errorPath.isEmpty()
                ? parentError
                : open(errorPath.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644),
            STDERR_FILENO);
        // The type whose keys send the sequences of terminal/Keys.h.
        setenv("TERM", "linux", true);
        // A script ignores these in its background jobs, a login shell does not.
        ::signal(SIGINT, SIG_DFL);
        ::signal(SIGQUIT, SIG_DFL);
        execvp(argv.first(), argv.data());
        _exit(127);
    }
    return child > 0;
}

bool PtyProcess::send(const QByteArray &bytes)
{
    return write(master, bytes.constData(), size_t(bytes.size())) == bytes.size();
}

QByteArray PtyProcess::read(int timeoutMs, int limit)
{
    if (!isReadable(master, timeoutMs))
        return {};
    QByteArray bytes(limit, Qt::Uninitialized);
    bytes.truncate(int(qMax<ssize_t>(0, ::read(master, bytes.data(), size_t(limit)))));
    return bytes;
}

bool PtyProcess::isWaiting()
{
    // Output is checked last: a process that sleeps because the terminal is full has left some.
    const bool isDone = !isReadable(slave, 0) && isSleeping(child);
    return (isDone || status().state != ExitStatus::Running) && !isReadable(master, 0);
}

bool PtyProcess::isAtRest()
{
    // Unchanged scheduling statistics: the process did not run between the two checks.
    const QByteArray before = readProc(child, "schedstat");
    return isWaiting() && !hasChildren(child) && readProc(child, "schedstat") == before;
}

void PtyProcess::setInputBlocking(bool blocking)
{
    fcntl(slave, F_SETFL, blocking ? 0 : O_NONBLOCK);
}

void PtyProcess::stopOutput()
{
    tcflow(slave, TCOOFF);
}

void PtyProcess::hangUp()
{
    close(master);
    master = -1;
}

void PtyProcess::setSize(int rows, int columns)
{
    const winsize size = { ushort(rows), ushort(columns), 0, 0 };
    ioctl(master, TIOCSWINSZ, &size);
}

termios PtyProcess::attributes() const
{
    termios result = {};
    tcgetattr(slave, &result);
    return result;
}

void PtyProcess::signal(int number)
{
    if (child > 0 && status().state == ExitStatus::Running)
        ::kill(child, number);
}

void PtyProcess::kill()
{
    signal(SIGKILL);
    while (child > 0 && status().state == ExitStatus::Running)
        read(2);
}

ExitStatus PtyProcess::status()
{
    int status = 0;
    const bool isDue = child > 0 && exitStatus.state == ExitStatus::Running;
    if (isDue && waitpid(child, &status, WNOHANG) == child) {
        const bool exited = WIFEXITED(status);
        exitStatus.state = exited ? ExitStatus::Exited : ExitStatus::Killed;
        exitStatus.value = exited ? WEXITSTATUS(status) : WTERMSIG(status);
    }
    return exitStatus;
}
