// One run of a program.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <csignal>

/// A program that was started on pipes and leads a process group of its own. Its standard input
/// stays open and empty, its standard error goes nowhere.
class ToolProcess {
public:
    /// Starts `program`, which is looked for in PATH when it has no slash, with one argv entry for
    /// each of `arguments`. However much memory the console uses, none of it is copied.
    ToolProcess(const QString &program, const QStringList &arguments, const sigset_t &signalMask);

    /// Reaps the program; blocks until it ends, so kill a running one first.
    ~ToolProcess();

    ToolProcess(const ToolProcess &) = delete;
    ToolProcess &operator=(const ToolProcess &) = delete;

    /// The process id, which is also that of its group; 0 when the program could not be started.
    /// No other process gets it before the destructor returns.
    pid_t pid() const { return child; }

    /// False when the program could not be started or `wait` has seen its end.
    bool isRunning() const { return running; }

    /// Waits until there is something to take, the program ends, a signal comes or `timeoutMs` is
    /// over.
    void wait(int timeoutMs);

    /// Appends some of what the program has printed to `output`; false when there is nothing now.
    bool takeOutput(QByteArray &output);

private:
    pid_t child = 0;
    bool running = false;
    int inputEnd = -1;
    int outputEnd = -1; ///< -1 also after the last of the output
    int pidfd = -1; ///< becomes readable when the process ends; -1 where there is none
};
