// How much memory measured code allocates.
#pragma once

#include <benchmark/benchmark.h>

/// Reports what is allocated during its life as the counters "allocations" and "bytes" of one
/// iteration. There is one at a time.
class Allocations {
public:
    explicit Allocations(benchmark::State &state);
    ~Allocations();
    Allocations(const Allocations &) = delete;
    Allocations &operator=(const Allocations &) = delete;

private:
    benchmark::State &state;
};

/// Takes neither time nor allocations of a scope into account.
class Unmeasured {
public:
    explicit Unmeasured(benchmark::State &state);
    ~Unmeasured();
    Unmeasured(const Unmeasured &) = delete;
    Unmeasured &operator=(const Unmeasured &) = delete;

private:
    benchmark::State &state;
};
