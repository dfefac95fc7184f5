// A program that needs no terminal: runs it to its end.
#pragma once

#include <QByteArray>
#include <QStringList>

struct ProgramResult {
    int exitStatus; ///< 127 when it cannot be started, -1 when a signal ended it
    QByteArray output; ///< what it printed on standard output
};

/// Runs `program` with `arguments` and nothing to read. QProcess reports wrong statuses of
/// programs that run under an emulator.
ProgramResult runProgram(const QString &program, const QStringList &arguments);
