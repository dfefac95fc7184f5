// Runs a program to its end without a terminal, and ends one on a terminal.
#pragma once

#include "terminal/Keys.h"
#include "terminal/PtySession.h"

#include <QProcess>

#include <csignal>

struct ProgramResult {
    int status; ///< -1 when a signal ended it or it did not end in time
    QString output;
    QString messages; ///< on standard error
};

inline ProgramResult runProgram(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool hasEnded = process.waitForFinished(int(PtySession::scaled(30000)))
        && process.exitStatus() == QProcess::NormalExit;
    return { hasEnded ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError()) };
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
