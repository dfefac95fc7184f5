// A line on standard error that says how far a program is.
#pragma once

#include <QString>

/// Shows nothing unless standard error is a terminal.
class ProgressLine {
public:
    ProgressLine();
    /// Shows `text` in place of what was shown before, cut to the terminal's width.
    void show(const QString &text);

    void clear() { show({}); }

private:
    const bool isTerminal;
};
