// The attributes of the terminal on standard input.
#pragma once

#include <termios.h>

/// Switches the terminal to single keys without echo, and back when it is destroyed. On anything
/// but a terminal it has no effect. There is one at a time.
class TerminalMode {
public:
    TerminalMode();
    ~TerminalMode();
    TerminalMode(const TerminalMode &) = delete;
    TerminalMode &operator=(const TerminalMode &) = delete;

    /// Gives the terminal its former attributes back; safe in a signal handler, and to be called
    /// more than once.
    static void restore() noexcept;

    /// Switches again after `restore`; safe in a signal handler. Without effect when there is no
    /// TerminalMode.
    static void resume() noexcept;

private:
    termios savedTermios {};
    termios workingTermios {};
};
