// Keys in the menu, from their dispatch to the bytes written.
#include "bench/Allocations.h"
#include "bench/MenuSession.h"

namespace {

void itemCounts(benchmark::internal::Benchmark *bench)
{
    bench->Arg(40)->Arg(400)->Arg(2000)->Arg(10000);
    bench->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oAuto);
}

// Moves by `lines` and back, from the middle of the second page.
void moveAndBack(benchmark::State &state, int lines)
{
    MenuSession session(scriptWithFields(int(state.range(0))));
    session.state.selectedIndex = 30;
    session.draw();
    session.takeWritten();
    const Allocations allocations(state);
    for (auto _ : state) {
        session.move(lines);
        lines = -lines;
    }
    state.counters["written"] =
        benchmark::Counter(double(session.takeWritten()), benchmark::Counter::kAvgIterations);
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(moveAndBack, line, 1)->Apply(itemCounts);
BENCHMARK_CAPTURE(moveAndBack, page, -22)->Apply(itemCounts);
BENCHMARK_CAPTURE(moveAndBack, nowhere, 0)->Apply(itemCounts);

// Opens and closes a screen of three fields; all other screens are open.
void toggleScreen(benchmark::State &state)
{
    MenuSession session(scriptWithScreens(int(state.range(0))));
    session.openAll();
    session.state.selectedIndex = 1;
    session.draw();
    session.takeWritten();
    const Allocations allocations(state);
    for (auto _ : state)
        session.toggle();
    state.counters["written"] =
        benchmark::Counter(double(session.takeWritten()), benchmark::Counter::kAvgIterations);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(toggleScreen)->Apply(itemCounts);

} // namespace
