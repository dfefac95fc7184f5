// Keys in the menu, from their dispatch to the bytes written.
#include "bench/Allocations.h"
#include "bench/MenuDefinitions.h"
#include "bench/MenuSession.h"

namespace {

void itemCounts(benchmark::internal::Benchmark *bench)
{
    bench->Arg(40)->Arg(400)->Arg(2000)->Arg(10000);
    bench->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oAuto);
}

// Presses a key and the key that reverts it, from the middle of the second page.
void moveAndBack(benchmark::State &state, Qt::Key key, Qt::Key backKey)
{
    MenuSession session(scriptWithFields(int(state.range(0))));
    session.press(Qt::Key_Down, 30);
    session.takeWritten();
    const Allocations allocations(state);
    for (auto _ : state) {
        session.press(key);
        std::swap(key, backKey);
    }
    state.counters["written"] =
        benchmark::Counter(double(session.takeWritten()), benchmark::Counter::kAvgIterations);
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(moveAndBack, line, Qt::Key_Down, Qt::Key_Up)->Apply(itemCounts);
BENCHMARK_CAPTURE(moveAndBack, page, Qt::Key_PageUp, Qt::Key_PageDown)->Apply(itemCounts);
BENCHMARK_CAPTURE(moveAndBack, nowhere, Qt::Key_unknown, Qt::Key_unknown)->Apply(itemCounts);

// Opens and closes a screen of three fields; all other screens are open.
void toggleScreen(benchmark::State &state)
{
    MenuSession session(scriptWithScreens(int(state.range(0))));
    session.press(Qt::Key_Return); // a group of screens
    session.press(Qt::Key_Down);
    session.openAll();
    session.takeWritten();
    const Allocations allocations(state);
    for (auto _ : state)
        session.press(Qt::Key_Return);
    state.counters["written"] =
        benchmark::Counter(double(session.takeWritten()), benchmark::Counter::kAvgIterations);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(toggleScreen)->Apply(itemCounts);

} // namespace
