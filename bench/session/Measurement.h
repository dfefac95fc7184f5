// What is measured of a program.
#pragma once

#include "bench/session/Program.h"
#include "bench/session/Statistics.h"

/// How a program is called in the report, and how it is measured.
struct Subject {
    std::string name;
    Command command;
    std::string closeKey; ///< takes back what Return does; empty when Return is not measured
};

struct Start {
    Samples us;
    Samples peakKiB;
    std::string frame; ///< all bytes up to the end of the first frame
};

struct Key {
    Samples us;
    Samples bytes;
    double cpuUs = 0; ///< a key, the way there and the way back together
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

/// Types each key `count` times and takes it back, and adds the answers to those of `keys`.
void measureKeys(const Subject &subject, int count, Keys &keys);

/// What the program uses in five seconds without a key.
Usage measureIdle(const Subject &subject);
