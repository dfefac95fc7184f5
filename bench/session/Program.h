// A program on a terminal of its own, measured from outside.
#pragma once

#include "terminal/PtyProcess.h"

#include <string>
#include <vector>

using Command = std::vector<std::string>;

/// What a program has used since it was started, all its threads together.
struct Usage {
    double cpuUs = 0;
    double wakeUps = 0; ///< how often it was given a processor
    double switches = 0; ///< voluntary and involuntary context switches
    double writes = 0; ///< system calls that write, wherever to
};

/// What a program put on its terminal.
struct Reply {
    double us = 0; ///< from the cause to the last byte
    std::string bytes;
};

class Program {
public:
    /// Starts `command` on a terminal of 80 x 24. A failure ends the benchmark.
    explicit Program(const Command &command);

    /// What the program prints until it is silent for `quietMs` and used next to no processor time
    /// meanwhile; the time counts from its start.
    Reply firstFrame(int quietMs = 200);

    /// Types a key and returns what the program prints until it is silent for `quietMs`. Nothing
    /// within half a second is no answer.
    Reply press(const std::string &key, int quietMs = 30);

    bool isRunning();
    Usage usage() const;

    /// The most memory that was resident at a time, in KiB.
    double peakMemory() const;

private:
    void collect(Reply &reply, double startUs, int firstMs, int quietMs);

    PtyProcess process;
    double startedUs = 0;
};

/// A clock in microseconds.
double nowUs();

/// The time that `command` takes from its start to its end, its output read from a pipe.
double runUs(const Command &command);
