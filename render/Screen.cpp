#include "render/Screen.h"

namespace {

constexpr int longestBurstMs = 100; // without a frame, while keys keep coming
constexpr int shortestWaitMs = 10; // for a busy line

void moveCursorTo(QByteArray &bytes, int row, int column)
{
    bytes += "\x1b[" + QByteArray::number(row) + ';' + QByteArray::number(column) + 'H';
}

} // namespace

Screen::Screen(Line &line)
    : line(line)
{
}

void Screen::clear()
{
    isToBeCleared = true;
    nextFrame.clear();
    rows = 0;
    isStale = true;
}

void Screen::setCursorVisible(bool visible)
{
    cursorVisible = visible;
    isCursorToBeSet = true;
    isStale = true;
}

void Screen::show(const Frame &frame, int frameRows, const CursorPosition &position)
{
    nextFrame = frame;
    rows = frameRows;
    cursor = position;
    isStale = true;
}

int Screen::beforeWait(bool hasInput)
{
    if (!isStale || (hasInput && line.milliseconds() - burstStart < longestBurstMs))
        return -1;
    const qint64 queued = line.queuedBytes();
    if (queued > 0)
        return qMax(shortestWaitMs, int(queued * 1000 / line.bytesPerSecond()));
    writeChanges();
    burstStart = line.milliseconds();
    return -1;
}

void Screen::afterWait()
{
    burstStart = line.milliseconds();
}

void Screen::leave()
{
    isStale = false;
    line.write(leaveSequence);
}

void Screen::writeChanges()
{
    if (isToBeCleared) {
        bytes += "\x1b[2J\n";
        shownFrame.clear();
    }
    if (isCursorToBeSet) {
        // From the first row, the line break does not scroll, unless there is only one row.
        moveCursorTo(bytes, 0, 0);
        bytes += cursorVisible ? "\x1b[?25h\n" : "\x1b[?25l\n";
        if (rows == 1)
            shownFrame.clear();
    }
    for (int row = 1; row <= rows; ++row) {
        const QString text = nextFrame.value(row - 1);
        if (text == shownFrame.value(row - 1))
            continue;
        moveCursorTo(bytes, row, 0); // terminals take 0 as 1
        bytes += text.toLatin1();
        shownFrame.insert(row - 1, text);
    }
    if (cursorVisible)
        moveCursorTo(bytes, cursor.row, cursor.column);
    isToBeCleared = isCursorToBeSet = isStale = false;
    if (!bytes.isEmpty())
        line.write(bytes);
    bytes.truncate(0);
}
