#include "render/EditDialog.h"

#include "render/DialogBox.h"
#include "render/ForeignText.h"
#include "render/InputValidation.h"
#include "render/Saturated.h"

namespace {

// How much can be typed. This is not `fieldLength`, by which the cursor is placed: it does not ask
// for a range. A decimal rule counts its digits with the point, which is no integer.
int typingLimit(const QString &rule)
{
    if (!rule.startsWith(QLatin1Char('C')) && !rule.startsWith(QLatin1Char('N')))
        return 0;
    return saturated(strictInteger(rule.mid(1)).value_or(0));
}

} // namespace

Frame editDialog(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    state.rangeMin = 0;
    if (state.dialogValue < 0) {
        state.editBuffer = item.value.toString();
        state.dialogValue = state.editBuffer.size();
    }
    if (state.rangeLimit == 0)
        state.rangeLimit = typingLimit(validation(handler, item));

    const int width = boxWidthFor(state, state.rangeLimit);
    Frame box = dialogBox(
        state, width, QStringLiteral("Enter new Value ") + QString::number(state.rangeLimit));
    placeCentred(box, width, 3, printable(state.editBuffer), state.rangeLimit);
    colourSegment(box, width, 3, state.rangeLimit, !validateInput(handler, item, state.editBuffer));
    return box;
}
