#include "diagnose/DiagnoseScreen.h"

#include "diagnose/AsScreen.h"
#include "diagnose/PagedScreen.h"
#include "diagnose/TagScreen.h"

namespace {

void drawPages(Frame &frame, const PageLayout &layout, ViewState &state, const QVariantList &answer)
{
    constexpr int interfaceCount = 4;
    if (state.optionCount == 0 && state.listIndex < 0) {
        state.listIndex = 0;
        state.optionCount = interfaceCount;
    }
    drawPagedScreen(frame, layout, state.listIndex, state.optionCount, answer);
}

void drawTag(Frame &frame, TreeViewItemHandler &handler)
{
    const QVariantList versions = handler.interfaceList(TagInterface, 0);
    drawTagScreen(frame, versions,
        versions.size() > 1 ? handler.interfaceList(TagInterface, 1) : QVariantList());
}

} // namespace

Frame diagnoseScreen(ViewState &state, TreeViewItemHandler &handler, const TreeViewItem *item)
{
    const InterfaceKind kind = item ? handler.diagnoseScreen(*item) : NoInterface;
    Frame frame = buildBox(state.termRows, state.termColumns, state.termRows);
    placeCentred(frame, state.termColumns, 0, QString::fromLatin1(wordsOf(kind).title), 0);
    switch (kind) {
    case SpdInterface:
        drawPages(frame, spdLayout, state, handler.interfaceList(kind, 0));
        break;
    case IoInterface:
        drawPages(frame, ioLayout, state, handler.interfaceList(kind, 0));
        break;
    case WetlegInterface:
        drawPages(frame, wetlegLayout, state, handler.interfaceList(kind, 0));
        break;
    case TagInterface:
        drawTag(frame, handler);
        break;
    case AsInterface:
        drawAsScreen(frame, handler.interfaceList(kind, 0), state.statusText);
        break;
    case LevelInterface:
        placeCentred(frame, frame.value(0).size(), 1, QStringLiteral("Not Implemented yet.."), 0);
        break;
    case NoInterface:
        break;
    }
    return frame;
}
