#include "render/ValueCommit.h"

#include "render/InputValidation.h"

bool commitValue(const ViewState &state, const TreeViewItemHandler &handler, int index)
{
    TreeViewItem *const item = state.visibleItems.value(index);
    if (!item)
        return false;
    if (handler.isInputKind(*item, DropdownInput)) {
        item->value = handler.hasDatabaseValues(*item)
            ? handler.databaseValueAt(*item, state.listIndex)
            : QVariant(state.listIndex);
        return true;
    }
    if (handler.isInputKind(*item, BooleanInput)) {
        item->value = state.listIndex != 0;
        return true;
    }
    if (handler.isInputKind(*item, SliderInput)) {
        item->value = state.dialogValue;
        return true;
    }
    if (handler.isInputKind(*item, EditInput) && validateInput(handler, *item, state.editBuffer)) {
        item->value = state.editBuffer;
        return true;
    }
    return false;
}
