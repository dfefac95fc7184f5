// Runs a program to its end without a terminal, and ends one on a terminal.
#pragma once

#include "backend/BackendTool.h"
#include "terminal/Keys.h"
#include "terminal/PtySession.h"

#include <csignal>

struct ProgramResult {
    int status; ///< -1 when a signal ended it or it did not end in time
    QString output;
    QString messages; ///< on standard error
};

inline ProgramResult runProgram(const QString &program, const QStringList &arguments)
{
    // Not by QProcess: under Debian 12's emulator it does not notice the end of a program.
    const ToolRun run =
        BackendTool::observedRun(program, arguments, int(PtySession::scaled(30000)));
    return { run.end.kind == ToolEnd::Exited ? run.end.number : -1, QString::fromUtf8(run.output),
        QString::fromUtf8(run.errors) };
}

/// Runs a command of the shell.
inline ProgramResult runShell(const QString &command)
{
    return runProgram("/bin/bash", { "-c", command });
}

/// Sends a signal in the way that it usually comes: SIGINT by Ctrl-C, SIGHUP with the line.
inline void endBy(int number, PtySession &session)
{
    if (number == SIGINT)
        session.send(Key::interrupt);
    else if (number == SIGHUP)
        session.hangUp();
    else
        session.signal(number);
}
