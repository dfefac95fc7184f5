// What the terminal shows, and the writing of what changed.
#pragma once

#include "render/Frame.h"

#include <QByteArray>

#include <functional>
#include <optional>

/// A place on the terminal, counted from 1.
struct CursorPosition {
    int row;
    int column;
};

/// Leaves the terminal as programs expect it: no colours, text cursor visible, cleared.
constexpr char leaveSequence[] = "\x1b[0m\n\x1b[?25h\n\x1b[2J\n";

/// Remembers the frame that the terminal shows and writes only the rows that differ from it. All
/// bytes leave through the sink, one call a flush; nothing is flushed when there is nothing to say.
class Screen {
public:
    using Sink = std::function<void(const QByteArray &)>;

    explicit Screen(Sink sink);

    /// Clears the terminal and forgets what it shows, so that the next frame is written whole.
    void clear();

    /// Shows or hides the text cursor. The cursor moves to the next row.
    void setCursorVisible(bool visible);
    bool isCursorVisible() const { return cursorVisible; }

    /// Moves the text cursor with the next flush. Terminals take 0 as 1.
    void moveCursorTo(int row, int column);

    /// Shows the first `rows` lines of `frame`. Text beyond Latin-1 appears as question marks. A
    /// visible text cursor ends up at `cursor`.
    void show(const Frame &frame, int rows, const CursorPosition &cursor);

    /// Writes the leave sequence.
    void leave();

private:
    void flush();

    const Sink sink;
    Frame shownFrame;
    int shownRows = 0;
    QByteArray pending;
    bool cursorVisible = false;
};
