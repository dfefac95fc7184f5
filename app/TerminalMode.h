// The attributes of the terminal on standard input.
#pragma once

#include <QtGlobal>

#include <termios.h>

/// Switches the terminal to single keys without echo, and back when it is destroyed. Without effect
/// on anything but a terminal. At most one exists at a time.
class TerminalMode {
public:
    TerminalMode();
    ~TerminalMode();
    Q_DISABLE_COPY(TerminalMode)

    /// True while a TerminalMode exists and no shell has the terminal. Async-signal-safe.
    static bool isActive() noexcept;

    /// Restores the former attributes, unless a shell has the terminal. Async-signal-safe; a second
    /// call changes nothing.
    static void restore() noexcept;

    /// Switches again after `restore`. Async-signal-safe; without effect while no TerminalMode
    /// exists.
    static void resume() noexcept;

private:
    termios savedTermios {};
    termios workingTermios {};
};
