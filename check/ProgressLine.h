// A line on standard error that says how far a program is.
#pragma once

#include <QString>

/// Shows `text` in place of what was shown before, cut to the terminal's width; nothing unless
/// standard error is a terminal.
void showProgress(const QString &text);

/// Clears the line. Async-signal-safe.
void clearProgress() noexcept;
