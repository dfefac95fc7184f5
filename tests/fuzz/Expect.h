// What a fuzz target checks.
#pragma once

/// Ends the run and keeps the input when an expectation does not hold.
inline void expect(bool holds)
{
    if (!holds)
        __builtin_trap();
}
