// A terminal in memory: takes the bytes that a program writes and tells what the screen shows.
#pragma once

#include <QByteArray>
#include <QPoint>
#include <QSize>
#include <QStringList>

#include <memory>

struct VTerm;
struct VTermScreen;

class TerminalEmulator {
public:
    /// The value is the letter of the colour in `backgrounds()`.
    enum class Background : char {
        Default = '.',
        Red = 'r',
        Green = 'g',
        Blue = 'b',
        Magenta = 'm',
        Other = '?'
    };

    struct Cell {
        QChar character; ///< a blank where nothing was written
        Background background;
    };

    TerminalEmulator(int rows, int columns);
    Q_DISABLE_COPY(TerminalEmulator)

    /// Takes output in Latin-1, in pieces of any size.
    void feed(const QByteArray &bytes);
    /// Changes the size and keeps what still fits; does not count as scrolling.
    void resize(int rows, int columns);

    /// Cell at a 0-based position; outside the screen a blank on another background.
    Cell cell(int row, int column) const;
    /// Text of a 0-based row without its trailing blanks.
    QString row(int row) const;
    /// Backgrounds of a 0-based row, one letter a column, as in "rrrr....".
    QString backgrounds(int row) const;
    /// Texts of all rows from top to bottom.
    QStringList screen() const;

    /// 0-based position of the cursor: x is the column, y the row.
    QPoint cursor() const;
    bool cursorVisible() const { return cursorShown; }
    /// What the terminal sent back to the program: empty unless the output asked for a report.
    QByteArray answerBack() const { return answers; }
    /// Lines that left the screen at its top; always 0 on a screen of a single row.
    int scrolledLines() const { return scrolled; }

private:
    std::unique_ptr<VTerm, void (*)(VTerm *)> vterm;
    VTermScreen *cells;
    QSize size;
    bool cursorShown = true;
    int scrolled = 0;
    QByteArray answers;
};
