// A program run to its end on a terminal that has no size.
#pragma once

#include "terminal/PtySession.h"

struct ProgramResult {
    ExitStatus end;
    QByteArray output; ///< what it printed on standard output
};

/// Runs `program`, a path or name; one that cannot be executed exits with 127.
inline ProgramResult runProgram(const QString &program, const QStringList &arguments)
{
    PtySession session;
    session.PtyProcess::start(program, arguments, 0, 0);
    const ExitStatus end = session.waitForExit();
    return { end, QByteArray(session.bytesSinceMark()).replace("\r\n", "\n") };
}
