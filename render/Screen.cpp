#include "render/Screen.h"

Screen::Screen(Sink sink)
    : sink(std::move(sink))
{
}

void Screen::clear()
{
    pending += "\x1b[2J\n";
    flush();
    shownFrame.clear();
}

void Screen::setCursorVisible(bool visible)
{
    cursorVisible = visible;
    pending += visible ? "\x1b[?25h\n" : "\x1b[?25l\n";
    // On a terminal of a single row every line break scrolls.
    if (shownRows == 1)
        shownFrame.clear();
    flush();
}

void Screen::moveCursorTo(int row, int column)
{
    pending += "\x1b[" + QByteArray::number(row) + ';' + QByteArray::number(column) + 'H';
}

void Screen::show(const Frame &frame, int rows, const CursorPosition &cursor)
{
    shownRows = rows;
    for (int row = 1; row <= rows; ++row) {
        const QString line = frame.value(row - 1);
        if (line == shownFrame.value(row - 1))
            continue;
        moveCursorTo(row, 0);
        pending += line.toLatin1();
        shownFrame.insert(row - 1, line);
    }
    if (cursorVisible)
        moveCursorTo(cursor.row, cursor.column);
    flush();
}

void Screen::leave()
{
    pending += leaveSequence;
    flush();
}

void Screen::flush()
{
    if (!pending.isEmpty())
        sink(pending);
    pending.truncate(0);
}
