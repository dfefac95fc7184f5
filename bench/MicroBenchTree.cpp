// The menu tree: evaluating its definition, building, numbering and rendering it.
#include "bench/Allocations.h"
#include "bench/MenuDefinitions.h"
#include "bench/MenuSession.h"

#include "menu/ScreenIndex.h"
#include "menu/TreeBuilder.h"
#include "render/MenuView.h"

#include <vector>

namespace {

// 100, 1,000 and 10,000 screens.
void screenCounts(benchmark::internal::Benchmark *bench)
{
    bench->RangeMultiplier(10)->Range(100, 10000)->Unit(benchmark::kMillisecond);
    bench->Complexity(benchmark::oAuto);
}

void screenCountsFromCold(benchmark::internal::Benchmark *bench)
{
    screenCounts(bench);
    bench->Iterations(20); // most of the time goes into the unmeasured preparation
}

// Evicts all data from the processor's caches, as at the start of a menu. Otherwise a small menu
// would be measured in the caches and a large one out of them.
void chillCaches(benchmark::State &state, bool cold)
{
    if (!cold)
        return;
    constexpr size_t moreThanAnyCache = 128 * 1024 * 1024;
    constexpr size_t cacheLine = 64;
    const Unmeasured scope(state);
    static std::vector<char> filler(moreThanAnyCache);
    for (size_t i = 0; i < filler.size(); i += cacheLine)
        ++filler[i];
    benchmark::DoNotOptimize(filler.data());
}

void evaluateScript(benchmark::State &state)
{
    const QString script = QString::fromLatin1(scriptWithScreens(int(state.range(0))));
    QScriptEngine engine;
    const Allocations allocations(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(engine.evaluate(script));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(evaluateScript)->Apply(screenCounts);

void buildTreeOfScreens(benchmark::State &state, bool cold)
{
    MenuTree menu(scriptWithScreens(int(state.range(0))));
    const TreeViewItemHandler &handler = menu.handler;
    const QScriptValue settings = menu.handler.scriptHelper().load();
    const Allocations allocations(state);
    for (auto _ : state) {
        chillCaches(state, cold);
        const ScreenIndex screens(settings, handler.names());
        auto root = buildTree(settings.property(0), screens, {}, handler.names());
        const Unmeasured scope(state);
        root.reset();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(buildTreeOfScreens, warm, false)->Apply(screenCounts);
BENCHMARK_CAPTURE(buildTreeOfScreens, cold, true)->Apply(screenCountsFromCold);

void numberVisibleItems(benchmark::State &state, bool cold)
{
    MenuTree menu(scriptWithScreens(int(state.range(0))));
    menu.openAll();
    const Allocations allocations(state);
    for (auto _ : state) {
        chillCaches(state, cold);
        QVector<TreeViewItem *> items;
        menu.handler.numberVisibleItems(*menu.root, items);
        benchmark::DoNotOptimize(items);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(numberVisibleItems, warm, false)->Apply(screenCounts);
BENCHMARK_CAPTURE(numberVisibleItems, cold, true)->Apply(screenCountsFromCold);

void renderItemLines(benchmark::State &state, bool cold)
{
    MenuTree menu(scriptWithScreens(int(state.range(0))));
    menu.openAll();
    const Allocations allocations(state);
    QString note;
    for (auto _ : state) {
        chillCaches(state, cold);
        const Frame lines = menuLines(menu.handler, *menu.root, 80, &note);
        benchmark::DoNotOptimize(&lines);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(renderItemLines, warm, false)->Apply(screenCounts);
BENCHMARK_CAPTURE(renderItemLines, cold, true)->Apply(screenCountsFromCold);

template <typename Query> void askOfField(benchmark::State &state, Query query)
{
    MenuTree menu(scriptWithFields(40));
    // The third field is a list, the input kind that takes the most work.
    const TreeViewItem &item = *menu.root->children.at(2);
    const Allocations allocations(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(query(menu.handler, item));
}
BENCHMARK_CAPTURE(askOfField, labelKey,
    [](const auto &handler, const auto &item) { return handler.labelKey(item); });
BENCHMARK_CAPTURE(askOfField, inputKind,
    [](const auto &handler, const auto &item) { return handler.inputKind(item); });
BENCHMARK_CAPTURE(askOfField, isEditable,
    [](const auto &handler, const auto &item) { return handler.isEditable(item); });
BENCHMARK_CAPTURE(askOfField, isVisible,
    [](const auto &handler, const auto &item) { return handler.isVisible(item); });
BENCHMARK_CAPTURE(askOfField, diagnoseScreen,
    [](const auto &handler, const auto &item) { return handler.diagnoseScreen(item); });
BENCHMARK_CAPTURE(askOfField, valueAt,
    [](const auto &handler, const auto &item) { return handler.valueAt(item, 1); });
BENCHMARK_CAPTURE(askOfField, widestValue,
    [](const auto &handler, const auto &item) { return handler.widestValue(item); });

} // namespace
