// Measures the start, the keys and the idle time of a program.
#pragma once

#include "bench/session/Program.h"
#include "bench/session/Statistics.h"

/// The name of a program in the report, and how it is measured.
struct Subject {
    QString name;
    QStringList command;
    QByteArray closeKey; ///< reverts what Return does; empty: Return is not measured
};

struct Start {
    Samples us;
    Samples peakKiB;
    QByteArray frame; ///< all bytes up to the end of the first frame
};

struct KeySamples {
    Samples us;
    Samples bytes;
    Samples cpuUs; ///< of a key and the key that reverts it, the mean of both
    Samples writes;
};

struct Keys {
    KeySamples down;
    KeySamples pageDown;
    KeySamples open;
    KeySamples close;
    QByteArray downAnswer; ///< the bytes of one of them
    bool hasEnded = false; ///< the program did not outlive its keys
};

/// Why a program cannot be measured, empty when it can: it prints a first frame and then waits.
QString whyUnfit(const QStringList &command);

/// Starts the program once.
void measureStart(const Subject &subject, Start &start);

/// Types each key and the key that reverts it `count` times, and adds the answers to `keys`. A
/// program that ends meanwhile gets no more keys.
void measureKeys(const Subject &subject, int count, Keys &keys);

/// What the program uses in five seconds without a key.
Usage measureIdle(const Subject &subject);
