#include "app/TerminalExit.h"

#include "app/TerminalMode.h"
#include "platform/WriteAtOnce.h"
#include "render/Screen.h"

#include <termios.h>
#include <unistd.h>

namespace {

// Rows beyond the last one count as the last one.
constexpr char lastRowSequence[] = "\x1b[0m\x1b[999H\x1b[K\x1b[?25h";

template <size_t size> void leave(const char (&text)[size]) noexcept
{
    if (!TerminalMode::isActive())
        return;
    tcflush(STDOUT_FILENO, TCOFLUSH);
    TerminalMode::restore();
    writeAtOnce(STDOUT_FILENO, text, size - 1);
}

} // namespace

void leaveTerminalCleared() noexcept
{
    leave(leaveSequence);
}

void leaveTerminalAtLastRow() noexcept
{
    leave(lastRowSequence);
}
