// What happens after a key was held on a slow line.
#pragma once

#include "bench/session/Measurement.h"

struct HeldKey {
    double overrunMs = 0; ///< from the release of the key to the end of the last byte
    int bytes = 0;
};

/// Starts the program and holds Down for two seconds, thirty times a second, while a relay takes
/// 960 bytes a second of its output, as a line of 9600 baud does.
HeldKey measureHeldDown(const Subject &subject);
