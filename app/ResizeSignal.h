// When the terminal's change of size may interrupt the program.
#pragma once

#include <csignal>

/// The handler of SIGWINCH draws. It must not come upon the program while that allocates memory or
/// draws itself, so the signal is held back but while the program waits.
namespace ResizeSignal {

/// Holds SIGWINCH back until `open`. Returns the mask from before.
sigset_t hold();

/// Lets SIGWINCH through, one that was held back at once.
void open();

/// Holds SIGWINCH back for a scope; one within another costs nothing.
class Hold {
public:
    Hold();
    ~Hold();
    Hold(const Hold &) = delete;
    Hold &operator=(const Hold &) = delete;

private:
    const bool isOutermost;
    sigset_t before;
};

/// Lets SIGWINCH through for a scope within a Hold.
class Window {
public:
    Window();
    ~Window();
    Window(const Window &) = delete;
    Window &operator=(const Window &) = delete;
};

} // namespace ResizeSignal
