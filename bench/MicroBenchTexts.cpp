// Texts from outside: the backend's answers and the translation table.
#include "bench/Allocations.h"

#include "locale/CTranslationHandler.h"
#include "menu/ScriptHelper.h"

namespace {

constexpr int kilobyte = 1024;
constexpr int megabyte = 1024 * 1024;

// Values as a group of a menu has them, `size` bytes of JSON.
QByteArray answerOf(int size)
{
    QByteArray json = "[";
    while (json.size() < size)
        json += "true,1250,-40,\"i18n_wm_false\",820.5,\"Tankwagen 12\",";
    json.chop(1);
    return json + "]";
}

void decode(benchmark::State &state)
{
    const QByteArray json = answerOf(int(state.range(0)));
    const Allocations allocations(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(ScriptHelper::byteArray2VariantList(json));
    state.SetBytesProcessed(state.iterations() * json.size());
}
BENCHMARK(decode)->Arg(kilobyte)->Arg(megabyte)->Unit(benchmark::kMicrosecond);

void encode(benchmark::State &state)
{
    const QByteArray json = answerOf(int(state.range(0)));
    const QVariantList values = ScriptHelper::byteArray2VariantList(json);
    const Allocations allocations(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(ScriptHelper::variantListToJson(values));
    state.SetBytesProcessed(state.iterations() * json.size());
}
BENCHMARK(encode)->Arg(kilobyte)->Arg(megabyte)->Unit(benchmark::kMicrosecond);

void translateWithTable(benchmark::State &state)
{
    const QString key = QStringLiteral("field_77");
    const Allocations allocations(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(translate(key));
}
BENCHMARK(translateWithTable);

// Without a table, the file is searched for again for each text.
void translateWithoutTable(benchmark::State &state)
{
    CTranslationHandler handler(QStringLiteral("/nonexistent"));
    const QString key = QStringLiteral("key_77");
    const Allocations allocations(state);
    for (auto _ : state) {
        const QString text = handler.translationMap(QStringLiteral("en")).value(key).toString();
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(translateWithoutTable);

} // namespace
