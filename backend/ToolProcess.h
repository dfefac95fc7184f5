// One run of a program.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <csignal>

/// How a run of a program ended.
struct ToolEnd {
    enum Kind { NotStarted, Exited, Signalled, TimedOut, PrintedTooMuch, Abandoned };
    Kind kind;
    int number; ///< the error number, exit status or signal of the first three kinds
};

/// A program on pipes in a session of its own, without a terminal; it also leads its process group.
/// Its standard input stays empty and open: its end would say that the caller is gone.
class ToolProcess {
public:
    enum StandardError { Discarded, Kept };

    /// Starts `program`, searched in PATH when it has no slash, with one argv entry for each of
    /// `arguments`. The console's memory is not copied, however large it is.
    ToolProcess(const QString &program, const QStringList &arguments, const sigset_t &signalMask,
        StandardError standardError);

    /// Reaps the program, or leaves one that still runs to be reaped when another one is started.
    ~ToolProcess();

    Q_DISABLE_COPY(ToolProcess)

    /// The process id, which is also that of its group; 0 when the program could not be started. It
    /// stays reserved until the destructor reaps the process, unless SIGCHLD is ignored.
    pid_t pid() const { return child; }

    /// False when the program could not be started or `wait` has noticed its end.
    bool isRunning() const { return running; }

    /// How it ended, as far as `wait` has noticed it: NotStarted, Exited or Signalled. A process
    /// that ignores SIGCHLD sees every program exit with 0.
    ToolEnd end() const { return toolEnd; }

    enum Awaited { OutputOrEnd, End };

    /// Waits until what is awaited is there, a signal comes or `timeoutMs` is over.
    void wait(int timeoutMs, Awaited awaited = OutputOrEnd);

    /// Appends some of the program's output to `output`; false when there is none now.
    bool takeOutput(QByteArray &output);

    /// As `takeOutput`, for standard error; false when it is discarded.
    bool takeErrors(QByteArray &errors);

private:
    pid_t child = 0;
    bool running = false;
    ToolEnd toolEnd {};
    int inputEnd = -1;
    int outputEnd = -1; ///< this and the next are -1 also after the end of the output
    int errorEnd = -1;
    int pidfd = -1; ///< becomes readable when the process ends; -1 where there is none
};
