#include "render/SliderDialog.h"

#include "render/DialogBox.h"
#include "render/Saturated.h"

int sliderMark(const ViewState &state, int barLength)
{
    const qint64 span = qint64(state.rangeLimit) - state.rangeMin;
    if (state.dialogValue <= 0 || span == 0)
        return 0;
    const qint64 distance = qint64(state.dialogValue) - state.rangeMin;
    return saturated(qMax<qint64>(barLength * distance / span, 0));
}

Frame sliderDialog(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item)
{
    state.rangeMin = handler.minimum(item);
    state.step = handler.step(item);
    state.rangeLimit = saturated(qint64(handler.maximum(item)) + 1);
    if (state.dialogValue < state.rangeMin)
        state.dialogValue = item.value.toInt();

    const int width = plainBoxWidth(state);
    const int barLength = qMax(width - 2, 0);
    QString bar(barLength, QLatin1Char('-'));
    const int mark = sliderMark(state, barLength);
    if (mark <= barLength)
        replaceText(bar, mark, 1, QStringLiteral("|"));

    Frame box = dialogBox(state, width, QStringLiteral("Set new Value"));
    placeCentred(box, width, 2, QString::number(state.dialogValue), 0);
    placeCentred(box, width, 3, bar, 0);
    return box;
}
