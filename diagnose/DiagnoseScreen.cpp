#include "diagnose/DiagnoseScreen.h"

#include "diagnose/AsScreen.h"
#include "diagnose/PagedScreen.h"
#include "diagnose/ScreenLines.h"
#include "diagnose/TagScreen.h"

namespace {

void drawPages(Frame &frame, const PageLayout &layout, ViewState &state, const QVariantList &answer)
{
    if (state.listIndex < 0) {
        state.listIndex = 0;
        state.optionCount = interfaceCount;
    }
    drawPagedScreen(frame, layout, state.listIndex, answer);
}

} // namespace

Frame diagnoseScreen(ViewState &state, TreeViewItemHandler &handler, const TreeViewItem *item)
{
    const InterfaceKind kind = item ? handler.diagnoseScreen(*item) : NoInterface;
    Frame frame = buildBox(state.termRows, state.termColumns, state.termRows);
    placeCentred(frame, state.termColumns, 0, QString::fromLatin1(wordsOf(kind).title), 0);
    const QVariantList answer =
        kind == LevelInterface ? QVariantList() : handler.interfaceList(kind, 0);
    switch (kind) {
    case SpdInterface:
        drawPages(frame, spdLayout, state, answer);
        break;
    case IoInterface:
        drawPages(frame, ioLayout, state, answer);
        break;
    case WetlegInterface:
        drawPages(frame, wetlegLayout, state, answer);
        break;
    case TagInterface:
        drawTagScreen(frame, answer, handler.interfaceList(kind, 1));
        break;
    case AsInterface:
        drawAsScreen(frame, answer, state.statusText);
        break;
    case LevelInterface:
        placeMessage(frame, 1, QStringLiteral("Not Implemented yet.."));
        break;
    case NoInterface:
        break;
    }
    return frame;
}
