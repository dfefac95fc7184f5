// How long a run of a program takes that needs no terminal.
#pragma once

#include <QStringList>

/// The time in microseconds from the start of a program, its path and its arguments, to its end,
/// its output read from a pipe. A program that cannot be run ends the benchmark.
double runUs(const QStringList &command);
