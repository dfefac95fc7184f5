// A terminal in memory: takes the bytes that a program writes and shows its screen.
#pragma once

#include <QByteArray>
#include <QPoint>
#include <QSize>
#include <QStringList>

#include <memory>
#include <set>

struct VTerm;
struct VTermScreen;

class TerminalEmulator {
public:
    TerminalEmulator(int rows, int columns);
    Q_DISABLE_COPY(TerminalEmulator)

    /// Takes output in Latin-1, in pieces of any size.
    void feed(const QByteArray &bytes);
    /// Changes the size and keeps what still fits, which does not count as written.
    void resize(int rows, int columns);

    /// Text of a 0-based row without its trailing blanks; empty outside the screen.
    QString row(int row) const;
    /// Backgrounds of a 0-based row, one letter a column as in "rrrr....": "." the default colour,
    /// "r" red, "g" green, "b" blue, "m" magenta, "?" any other.
    QString backgrounds(int row) const;
    /// Texts of all rows from top to bottom.
    QStringList screen() const;

    /// 0-based rows that the program has written, cleared or scrolled since the last
    /// `forgetWrittenRows`, also those that look the same as before.
    const std::set<int> &writtenRows() const { return written; }
    void forgetWrittenRows() { written.clear(); }

    /// 0-based position of the cursor: x is the column, y the row.
    QPoint cursor() const;
    bool cursorVisible() const { return cursorShown; }
    /// What the terminal sent back to the program: empty unless the output asked for a report.
    const QByteArray &answerBack() const { return answers; }

private:
    std::unique_ptr<VTerm, void (*)(VTerm *)> vterm;
    VTermScreen *cells;
    QSize size;
    std::set<int> written;
    bool cursorShown = true;
    QByteArray answers;
};
