// A process on a pseudo-terminal: starts it, sends it input, takes its output.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <sys/types.h>
#include <termios.h>

/// How a process ended; prints itself when a comparison fails.
struct ExitStatus {
    enum State { Running, Exited, Killed };
    State state;
    int value; ///< exit code or signal number, 0 while running
};

bool operator==(const ExitStatus &left, const ExitStatus &right);
char *toString(const ExitStatus &status);

class PtyProcess {
public:
    PtyProcess() = default;
    Q_DISABLE_COPY(PtyProcess)
    /// Kills the process if it still runs.
    ~PtyProcess();

    /// File for standard error, emptied at the start; "/dev/tty" is the terminal itself. Without a
    /// file the process inherits the standard error of its parent.
    void setStandardError(const QString &path) { errorPath = path.toLocal8Bit(); }
    /// Starts a program by its path or name, once in the life of the object. False without a
    /// terminal; a program that cannot be executed exits with 127.
    bool start(const QString &program, const QStringList &arguments, int rows, int columns);

    /// Sends all bytes at once. False when the terminal does not take them.
    bool send(const QByteArray &bytes);
    /// The next output of the process, at most `limit` bytes; empty when none comes in time. A
    /// negative time waits without an end.
    QByteArray read(int timeoutMs, int limit = 4096);
    /// True when the process has read all input, sleeps, and all its output is taken; also when it
    /// has ended.
    bool isWaiting();
    /// True when the process waits and has no child process, so that nothing happens before the
    /// next input, signal or timer; also when it has ended.
    bool isAtRest();

    /// Sets or clears O_NONBLOCK on the terminal, as a program before may have left it.
    void setInputBlocking(bool blocking);
    /// Stops the output of the terminal, as Ctrl-S does.
    void stopOutput();
    /// Hangs up: sends SIGHUP, and ends input and output.
    void hangUp();
    /// Changes the size of the terminal, which sends SIGWINCH.
    void setSize(int rows, int columns);
    /// Attributes of the terminal, also after the end of the process.
    termios attributes() const;

    /// Sends a signal to a process that still runs.
    void signal(int number);
    /// Kills the process if it still runs and waits for its end.
    void kill();
    /// How the process ended, or that it still runs.
    ExitStatus status();
    /// Process id, -1 before the start.
    pid_t pid() const { return child; }

private:
    int master = -1;
    int slave = -1;
    pid_t child = -1;
    ExitStatus exitStatus { ExitStatus::Running, 0 };
    QByteArray errorPath;
};
