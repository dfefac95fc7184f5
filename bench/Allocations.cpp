// Counts allocations: replaces the allocation functions of this program.
#include "bench/Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
}

namespace {

std::atomic<bool> isCounting(false);
std::atomic<int64_t> allocations(0);
std::atomic<int64_t> allocatedBytes(0);

void count(size_t size)
{
    if (!isCounting.load(std::memory_order_relaxed))
        return;
    allocations.fetch_add(1, std::memory_order_relaxed);
    allocatedBytes.fetch_add(int64_t(size), std::memory_order_relaxed);
}

} // namespace

void *operator new(size_t size)
{
    count(size);
    if (void *const memory = __libc_malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, size_t) noexcept
{
    std::free(memory);
}

// Qt's containers and the script engine call malloc, not operator new.
extern "C" {

void *malloc(size_t size) noexcept
{
    count(size);
    return __libc_malloc(size);
}

void *calloc(size_t number, size_t size) noexcept
{
    count(number * size);
    return __libc_calloc(number, size);
}

void *realloc(void *memory, size_t size) noexcept
{
    count(size);
    return __libc_realloc(memory, size);
}
}

Allocations::Allocations(benchmark::State &state)
    : state(state)
{
    allocations = 0;
    allocatedBytes = 0;
    isCounting = true;
}

Allocations::~Allocations()
{
    isCounting = false;
    state.counters["allocations"] =
        benchmark::Counter(double(allocations), benchmark::Counter::kAvgIterations);
    state.counters["bytes"] =
        benchmark::Counter(double(allocatedBytes), benchmark::Counter::kAvgIterations);
}

Unmeasured::Unmeasured(benchmark::State &state)
    : state(state)
{
    state.PauseTiming();
    isCounting = false;
}

Unmeasured::~Unmeasured()
{
    isCounting = true;
    state.ResumeTiming();
}
