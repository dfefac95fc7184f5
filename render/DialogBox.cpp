#include "render/DialogBox.h"

namespace {

constexpr int dialogLines = 7;

} // namespace

int boxWidthFor(const ViewState &state, qint64 contentLength)
{
    const qint64 columns = state.termColumns;
    const qint64 needed = contentLength + 2;
    if (columns / 2 >= needed)
        return int(columns / 2);
    return int(columns >= 2 * needed ? 2 * needed : qMin(needed, columns));
}

int plainBoxWidth(const ViewState &state)
{
    return qMax(state.termColumns / 2, qMin(state.termColumns, 2));
}

Frame dialogBox(const ViewState &state, int width, const QString &title)
{
    Frame box = buildBox(dialogLines, width, state.termRows);
    placeCentred(box, width, 0, title, 0);
    return box;
}
