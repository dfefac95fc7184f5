// Writing without waiting.
#pragma once

#include <cstddef>

/// Writes what `descriptor` takes at once, and returns the number of bytes written.
/// Async-signal-safe.
size_t writeAtOnce(int descriptor, const char *bytes, size_t size) noexcept;
