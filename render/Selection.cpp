#include "render/Selection.h"

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
    if (index > state.rangeLimit)
        return state.rangeLimit;
    const TreeViewItem *const item = state.selectedItem();
    const bool isEdit = item && handler.inputKind(*item) == EditInput;
    return isEdit ? qMin(int(index), state.editBuffer.size()) : int(index);
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
        state.overlayLines.clear();
        break;
    case NoView:
        break;
    }
}
