#include "render/FrameComposer.h"

#include "render/Bars.h"
#include "render/MenuView.h"

Frame composeFrame(const ViewState &state, const QString &title)
{
    const int rows = state.termRows;
    const int columns = state.termColumns;
    const int top = firstShownLine(state.selectedIndex, rows);
    const bool hasBox = state.currentView != MenuView && !state.overlayLines.isEmpty();
    const int boxHeight = state.overlayLines.size();
    const int boxWidth = state.overlayLines.value(0).size();
    const int boxTop = rows / 2 - boxHeight / 2;

    Frame frame;
    frame.insert(0, cutToWidth(headerBar(), columns));
    for (int row = 1; row <= rows - 2; ++row) {
        const int line = top + row - 1;
        QString text = state.menuLines.value(line);
        if (hasBox && row >= boxTop && row <= rows / 2 + boxHeight / 2) {
            replaceText(text, columns / 2 - boxWidth / 2, boxWidth,
                Escape::reset + state.overlayLines.value(row - boxTop));
        }
        if (line == state.selectedIndex && state.currentView != StartView)
            text.prepend(Escape::highlight);
        frame.insert(row, cutToWidth(text, columns) + Escape::eraseToEndOfLine + Escape::reset);
    }
    frame.insert(rows - 1, cutToWidth(title, columns));
    return frame;
}
