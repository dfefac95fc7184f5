// The boxes over the menu: value dialogs and diagnose screens.
#include "bench/Allocations.h"
#include "bench/MenuSession.h"

#include "diagnose/AsScreen.h"
#include "diagnose/PagedScreen.h"
#include "diagnose/TagScreen.h"
#include "render/ValueDialog.h"

#include <QVector>

namespace {

const QByteArray script = "var Settings = { setupStructureVersion: 7, settings: [{ screens: ["
                          "{ i18n: 'list', inputType: 'dropdown', remote: 1,"
                          "  values: ['first', 'second', 'third', 'fourth'] },"
                          "{ i18n: 'switch', inputType: 'boolean', remote: 1 },"
                          "{ i18n: 'slider', inputType: 'slider', remote: 1,"
                          "  min: 0, max: 100, step: 5 },"
                          "{ i18n: 'text', inputType: 'edit', remote: 1, validation: 'C20' }"
                          "] }] };";

void drawDialog(benchmark::State &state, int field)
{
    MenuSession session(script);
    session.state.currentView = EditView;
    session.state.selectedIndex = field;
    TreeViewItem &item = *session.root->children.at(size_t(field));
    item.value = 1;
    const Allocations allocations(state);
    for (auto _ : state) {
        session.state.overlayLines = valueDialog(session.state, session.handler, item);
        session.draw();
    }
}
BENCHMARK_CAPTURE(drawDialog, list, 0);
BENCHMARK_CAPTURE(drawDialog, boolean, 1);
BENCHMARK_CAPTURE(drawDialog, slider, 2);
BENCHMARK_CAPTURE(drawDialog, edit, 3);

QVariant numbers(int count)
{
    QVariantList list;
    for (int number = 0; number < count; ++number)
        list.append(number * 37);
    return list;
}

QVariantList versionsAnd(const QVariantList &rest)
{
    return QVariantList { QStringLiteral("2.07"), QStringLiteral("B") } + rest;
}

template <typename Draw> void drawDiagnose(benchmark::State &state, Draw draw)
{
    MenuSession session(script);
    session.state.currentView = DiagnoseView;
    const Allocations allocations(state);
    for (auto _ : state) {
        session.state.overlayLines = buildBox(24, 80, 24);
        draw(session.state.overlayLines);
        session.draw();
    }
}
BENCHMARK_CAPTURE(drawDiagnose, spd, [](Frame &frame) {
    static const QVariantList answer { QVariant(versionsAnd({ numbers(20) })) };
    drawPagedScreen(frame, spdLayout, 0, answer);
});
BENCHMARK_CAPTURE(drawDiagnose, io, [](Frame &frame) {
    static const QVariantList answer { QVariant(versionsAnd({ numbers(2), numbers(8) })) };
    drawPagedScreen(frame, ioLayout, 0, answer);
});
BENCHMARK_CAPTURE(drawDiagnose, tag, [](Frame &frame) {
    static const QVariantList tag = numbers(9).toList();
    drawTagScreen(frame, versionsAnd({}), tag);
});
BENCHMARK_CAPTURE(drawDiagnose, as, [](Frame &frame) {
    static const QVariantList sensors = QVector<QVariant>(12, numbers(2)).toList();
    QString note;
    drawAsScreen(frame, versionsAnd({ QVariant(sensors) }), note);
});

} // namespace
