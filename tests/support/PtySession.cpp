// A program on a terminal of its own: starts it, types keys, waits for what its screen shows.
#include "tests/support/PtySession.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QVector>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utmp.h>

static bool isReadable(int descriptor, int timeoutMs)
{
    pollfd request = { descriptor, POLLIN, 0 };
    return poll(&request, 1, timeoutMs) > 0 && (request.revents & POLLIN);
}

static bool isRunning(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return text.contains(") R ") || text.contains(") D ");
}

bool operator==(const ExitStatus &left, const ExitStatus &right)
{
    return left.state == right.state && left.value == right.value;
}

char *toString(const ExitStatus &status)
{
    static const char *const states[] = { "running ", "exited ", "killed " };
    return qstrdup(states[status.state] + QByteArray::number(status.value));
}

PtySession::~PtySession()
{
    kill();
    close(master);
    close(slave);
}

bool PtySession::start(const QString &program, const QStringList &arguments, int rows, int columns)
{
    if (child > 0 || openpty(&master, &slave, nullptr, nullptr, nullptr) != 0)
        return false;
    fcntl(master, F_SETFD, FD_CLOEXEC);
    fcntl(master, F_SETFL, O_NONBLOCK);
    fcntl(slave, F_SETFD, FD_CLOEXEC);
    resize(rows, columns);

    const QString words = (QStringList(program) + arguments).join(QChar::Null);
    QByteArrayList texts = words.toLocal8Bit().split('\0');
    QVector<char *> argv;
    for (QByteArray &text : texts)
        argv += text.data();
    argv += nullptr;

    child = fork();
    if (child == 0) {
        const int testError = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
        login_tty(slave);
        dup2(errorPath.isEmpty()
                ? testError
                : open(errorPath.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644),
            STDERR_FILENO);
        setenv("TERM", "vt100", true);
        execv(argv.first(), argv.data());
        _exit(127);
    }
    return child > 0;
}

bool PtySession::send(const QByteArray &bytes)
{
    return write(master, bytes.constData(), size_t(bytes.size())) == bytes.size();
}

bool PtySession::type(const QByteArray &bytes)
{
    return std::all_of(
        bytes.begin(), bytes.end(), [this](char byte) { return press(QByteArray(1, byte)); });
}

bool PtySession::press(const QByteArray &key)
{
    // Asked in this order: a program that sleeps because the terminal is full leaves output.
    return send(key) && waitFor([this] {
        return !isReadable(slave, 0) && !isRunning(child) && !isReadable(master, 0);
    });
}

void PtySession::signal(int number)
{
    if (child > 0 && !hasEnded())
        ::kill(child, number);
}

void PtySession::kill()
{
    if (child <= 0)
        return;
    signal(SIGKILL);
    waitForExit();
}

void PtySession::resize(int rows, int columns)
{
    const winsize size = { ushort(rows), ushort(columns), 0, 0 };
    emulator.resize(rows, columns);
    ioctl(master, TIOCSWINSZ, &size);
}

qint64 PtySession::scaled(int timeoutMs)
{
    return qint64(timeoutMs) * qMax(1, qEnvironmentVariableIntValue("DRAVIKON_TEST_SLOWDOWN"));
}

bool PtySession::waitFor(const std::function<bool()> &condition, int timeoutMs)
{
    constexpr int stepMs = 2;
    const QDeadlineTimer deadline(scaled(timeoutMs));
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        takeOutput(stepMs);
    }
    return true;
}

bool PtySession::waitForText(const QString &text)
{
    return waitFor([&] { return !emulator.screen().filter(text).isEmpty(); });
}

ExitStatus PtySession::waitForExit()
{
    if (waitFor([this] { return hasEnded(); }))
        while (takeOutput(0)) { }
    return exitStatus;
}

void PtySession::mark()
{
    while (takeOutput(0)) { }
    output.clear();
}

termios PtySession::attributes() const
{
    termios result = {};
    tcgetattr(slave, &result);
    return result;
}

bool PtySession::takeOutput(int timeoutMs)
{
    if (!isReadable(master, timeoutMs))
        return false;
    char buffer[4096];
    const QByteArray bytes(buffer, int(qMax<ssize_t>(0, read(master, buffer, sizeof buffer))));
    output += bytes;
    emulator.feed(bytes);
    return !bytes.isEmpty();
}

bool PtySession::hasEnded()
{
    int status = 0;
    const bool isDue = child > 0 && exitStatus.state == ExitStatus::Running;
    if (isDue && waitpid(child, &status, WNOHANG) == child) {
        const bool exited = WIFEXITED(status);
        exitStatus.state = exited ? ExitStatus::Exited : ExitStatus::Killed;
        exitStatus.value = exited ? WEXITSTATUS(status) : WTERMSIG(status);
    }
    return exitStatus.state != ExitStatus::Running;
}
