// Measures the start, the keys and the idle time of a program.
#pragma once

#include "bench/session/Program.h"
#include "bench/session/Statistics.h"

/// The name of a program in the report, and how it is measured.
struct Subject {
    std::string name;
    Command command;
    std::string closeKey; ///< reverts what Return does; empty: Return is not measured
};

struct Start {
    Samples us;
    Samples peakKiB;
    std::string frame; ///< all bytes up to the end of the first frame
};

struct Key {
    Samples us;
    Samples bytes;
    double cpuUs = 0; ///< of a key and the key that reverts it, together
    double writes = 0;
};

struct Keys {
    Key down;
    Key pageDown;
    Key open;
    Key close;
    std::string downAnswer; ///< the bytes of one of them
};

/// Starts the program once.
void measureStart(const Subject &subject, Start &start);

/// Types each key and the key that reverts it `count` times, and adds the answers to `keys`.
void measureKeys(const Subject &subject, int count, Keys &keys);

/// What the program uses in five seconds without a key.
Usage measureIdle(const Subject &subject);
