// What the terminal shows, and when and how that changes.
#pragma once

#include "render/Frame.h"
#include "render/Line.h"

/// A place on the terminal, counted from 1.
struct CursorPosition {
    int row = 1;
    int column = 1;
};

/// Leaves the terminal as programs expect it: no colours, text cursor visible, cleared.
constexpr char leaveSequence[] = "\x1b[0m\n\x1b[?25h\n\x1b[2J\n";

/// Keeps what the terminal has to show until the line is free and the console is about to wait for
/// input; until then a newer frame replaces an older one. Writes only the rows that differ from
/// what the terminal shows by then, in one call of the line, and nothing when there is nothing new.
class Screen {
public:
    explicit Screen(Line &line);

    /// Clears the terminal and forgets what it shows, so that the next frame is written whole.
    void clear();

    /// Shows or hides the text cursor.
    void setCursorVisible(bool visible);
    bool isCursorVisible() const { return cursorVisible; }

    /// Shows the first `frameRows` lines of `frame`. Text beyond Latin-1 appears as question marks.
    /// A visible text cursor ends up at `position`.
    void show(const Frame &frame, int frameRows, const CursorPosition &position);

    /// To be called before each wait for input; `hasInput` when there is some already. Writes what
    /// is to be shown if the line is free; while there is input, only after 100 ms without a frame.
    /// Returns the milliseconds after which it is to be called again, or -1 when nothing is left.
    int beforeWait(bool hasInput);

    /// To be called when a wait for input is over.
    void afterWait();

    /// Writes the leave sequence; what is to be shown is dropped.
    void leave();

private:
    void writeChanges();

    Line &line;
    Frame shownFrame; ///< what the terminal shows
    Frame nextFrame; ///< what it has to show
    int rows = 0; ///< of `nextFrame`
    CursorPosition cursor;
    bool cursorVisible = false;
    bool isToBeCleared = false;
    bool isCursorToBeSet = false;
    bool isStale = false; ///< there may be something to write
    qint64 burstStart = 0; ///< when a frame left or the last wait was over, by the line's clock
    QByteArray bytes; ///< keeps its memory from one frame to the next
};
