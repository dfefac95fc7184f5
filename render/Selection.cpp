#include "render/Selection.h"

#include "render/Saturated.h"

namespace {

int within(int lowest, int limit, qint64 index)
{
    if (index < lowest)
        return lowest;
    return index >= limit ? limit - 1 : int(index);
}

int horizontalIndex(const ViewState &state, const TreeViewItemHandler &handler, qint64 index)
{
    if (index < state.rangeMin)
        return state.rangeMin;
    const TreeViewItem *const item = state.selectedItem();
    const int textLength = state.editBuffer.size();
    if (item && handler.isInputKind(*item, EditInput) && index >= textLength)
        return index > state.rangeLimit ? state.rangeLimit : textLength;
    return saturated(qMin<qint64>(index, state.rangeLimit));
}

} // namespace

void moveSelection(ViewState &state, const TreeViewItemHandler &handler, bool horizontal, int delta)
{
    const qint64 distance = qint64(delta) * state.step;
    switch (state.currentView) {
    case MenuView:
        if (!horizontal)
            state.selectedIndex = within(0, state.visibleCount(), state.selectedIndex + distance);
        break;
    case StartView:
    case EditView:
    case DiagnoseView:
        if (horizontal)
            state.dialogValue = horizontalIndex(state, handler, state.dialogValue + distance);
        else
            state.listIndex = within(state.listMin, state.optionCount, state.listIndex + distance);
        break;
    default:
        break;
    }
}
