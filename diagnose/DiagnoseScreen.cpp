#include "diagnose/DiagnoseScreen.h"

#include "diagnose/AsScreen.h"
#include "diagnose/PagedScreen.h"
#include "diagnose/TagScreen.h"

#include <array>

namespace {

constexpr std::array<const char *, 7> titles = { "",
    "SPD Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)",
    "IO Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)",
    "Wetleg Interface Diagnose (IF: <Page UP/DOWN | End: 2*<ESC>)",
    "TAG Interface Diagnose (End: 2*<ESC>)", "AS Interface Diagnose (End: 2*<ESC>)",
    "Level Interface Diagnose (End: 2*<ESC>)" };

constexpr int pagedInterfaces = 4;

void openPages(ViewState &state)
{
    if (state.optionCount == 0 && state.listIndex < 0) {
        state.listIndex = 0;
        state.optionCount = pagedInterfaces;
    }
}

} // namespace

Frame diagnoseScreen(ViewState &state, TreeViewItemHandler &handler, const TreeViewItem *item)
{
    const int kind = item ? handler.diagnoseScreen(*item) : int(NoInterface);
    Frame frame = buildBox(state.termRows, state.termColumns, state.termRows);
    placeCentred(frame, state.termColumns, 0, QString::fromLatin1(titles[size_t(kind)]), 0);
    switch (kind) {
    case SpdInterface:
    case IoInterface:
    case WetlegInterface:
        openPages(state);
        drawPagedScreen(frame, InterfaceKind(kind), state.listIndex, state.optionCount,
            handler.interfaceList(kind, 0));
        break;
    case TagInterface: {
        const QVariantList versions = handler.interfaceList(kind, 0);
        drawTagScreen(
            frame, versions, versions.size() > 1 ? handler.interfaceList(kind, 1) : QVariantList());
        break;
    }
    case AsInterface:
        drawAsScreen(frame, handler.interfaceList(kind, 0), state.statusText);
        break;
    case LevelInterface:
        placeCentred(frame, frame.value(0).size(), 1, QStringLiteral("Not Implemented yet.."), 0);
        break;
    default:
        break;
    }
    return frame;
}
