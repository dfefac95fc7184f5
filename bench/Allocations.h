// How much memory measured code allocates.
#pragma once

#include <benchmark/benchmark.h>

/// Counts what is allocated during its lifetime and reports it as the counters "allocations" and
/// "bytes", per iteration. Only one may exist at a time.
class Allocations {
public:
    explicit Allocations(benchmark::State &state);
    ~Allocations();
    Allocations(const Allocations &) = delete;
    Allocations &operator=(const Allocations &) = delete;

private:
    benchmark::State &state;
};

/// Excludes a scope from the measured time and from the counted allocations.
class Unmeasured {
public:
    explicit Unmeasured(benchmark::State &state);
    ~Unmeasured();
    Unmeasured(const Unmeasured &) = delete;
    Unmeasured &operator=(const Unmeasured &) = delete;

private:
    benchmark::State &state;
};
