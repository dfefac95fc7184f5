// A program on a terminal of its own, measured from outside.
#pragma once

#include "terminal/PtyProcess.h"

#include <QElapsedTimer>

/// What a program has used since it was started, all its threads together; nothing once it ended.
struct Usage {
    double cpuUs = 0;
    double wakeUps = 0; ///< how often it was given a processor
    double switches = 0; ///< voluntary and involuntary context switches
    double writes = 0; ///< system calls that write, wherever to
};

/// What a program put on its terminal.
struct Reply {
    double us = 0; ///< from the cause to the last byte
    QByteArray bytes;
};

/// Microseconds since `timer` was started.
inline double elapsedUs(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1000;
}

class Program {
public:
    /// Starts a program, its path or name and its arguments, on a terminal of 80 x 24. Without a
    /// terminal the benchmark aborts.
    explicit Program(const QStringList &command);

    /// What the program prints until it is silent for `quietMs` and used next to no processor time
    /// meanwhile, at most for ten seconds; the time counts from its start.
    Reply firstFrame(int quietMs = 200);

    /// Types a key and returns what the program prints until it is silent for `quietMs`, at most
    /// for ten seconds. Nothing within half a second is no answer.
    Reply press(const QByteArray &key, int quietMs = 30);

    /// Types a key and waits for nothing.
    void send(const QByteArray &key) { process.send(key); }
    /// The next output, up to `limit` bytes; empty when none comes in time.
    QByteArray read(int timeoutMs, int limit) { return process.read(timeoutMs, limit); }

    ExitStatus status() { return process.status(); }
    bool isRunning() { return status().state == ExitStatus::Running; }
    Usage usage() const;

    /// The most memory that was resident at a time, in KiB; 0 once the program ended.
    double peakMemory() const;

private:
    void collect(Reply &reply, const QElapsedTimer &since, int firstMs, int quietMs);

    PtyProcess process;
    QElapsedTimer started;
};
