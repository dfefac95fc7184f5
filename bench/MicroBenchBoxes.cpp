// The boxes over the menu: value dialogs and diagnose screens.
#include "bench/Allocations.h"
#include "bench/MenuSession.h"

namespace {

const QByteArray script =
    "var Settings = { setupStructureVersion: 7, settings: [{ screens: ["
    "{ i18n: 'list', inputType: 'dropdown', remote: 1,"
    "  values: ['first', 'second', 'third', 'fourth'] },"
    "{ i18n: 'switch', inputType: 'boolean', remote: 1 },"
    "{ i18n: 'slider', inputType: 'slider', remote: 1, min: 0, max: 100, step: 5 },"
    "{ i18n: 'text', inputType: 'edit', remote: 1, validation: 'C20' },"
    "{ css: 'btnServiceDiagnoseSpdInterfaces', remote: 1 },"
    "{ css: 'btnServiceDiagnoseIOInterfaces', remote: 1 },"
    "{ css: 'btnServiceDiagnoseTagInterfaces', remote: 1 },"
    "{ css: 'btnServiceDiagnoseAsInterfaces', remote: 1 }"
    "] }, { css: 'btnServiceDiagnoseSpdInterfaces', type: 'status' },"
    "{ css: 'btnServiceDiagnoseIOInterfaces', type: 'status' },"
    "{ css: 'btnServiceDiagnoseTagInterfaces', type: 'status' },"
    "{ css: 'btnServiceDiagnoseAsInterfaces', type: 'status' }] };";

// Opens the box of the item on `line` and draws it again with each key.
void drawBox(benchmark::State &state, int line, const ToolRunner &tool)
{
    MenuSession session(script, tool);
    session.itemAt(line).value = 1;
    session.press(Qt::Key_Down, line);
    session.press(Qt::Key_Return);
    const Allocations allocations(state);
    for (auto _ : state)
        session.press(Qt::Key_unknown);
}

void drawDialog(benchmark::State &state, int line)
{
    drawBox(state, line, noAnswer);
}
BENCHMARK_CAPTURE(drawDialog, list, 0);
BENCHMARK_CAPTURE(drawDialog, boolean, 1);
BENCHMARK_CAPTURE(drawDialog, slider, 2);
BENCHMARK_CAPTURE(drawDialog, edit, 3);

// With the decoding of the tool's answer.
void drawDiagnose(benchmark::State &state, int line, const QByteArray &answer)
{
    drawBox(state, line, [answer](const QStringList &) { return answer; });
}
BENCHMARK_CAPTURE(drawDiagnose, spd, 4,
    "[[\"2.07\",\"B\",[0,37,74,111,148,185,222,259,296,333,"
    "370,407,444,481,518,555,592,629,666,703]]]");
BENCHMARK_CAPTURE(drawDiagnose, io, 5, "[[\"2.07\",\"B\",[0,37],[0,37,74,111,148,185,222,259]]]");
BENCHMARK_CAPTURE(drawDiagnose, tag, 6, "[0,37,74,111,148,185,222,259,296]");
BENCHMARK_CAPTURE(drawDiagnose, as, 7,
    "[\"2.07\",\"B\",[[0,37],[0,37],[0,37],[0,37],[0,37],[0,37],"
    "[0,37],[0,37],[0,37],[0,37],[0,37],[0,37]]]");

} // namespace
