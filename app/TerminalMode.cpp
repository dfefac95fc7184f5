#include "app/TerminalMode.h"

#include <atomic>

#include <unistd.h>

namespace {

// For signal handlers.
std::atomic<const termios *> saved(nullptr);
std::atomic<const termios *> working(nullptr);

void apply(const termios *attributes) noexcept
{
    if (attributes)
        tcsetattr(STDIN_FILENO, TCSANOW, attributes);
}

} // namespace

TerminalMode::TerminalMode()
{
    tcgetattr(STDIN_FILENO, &savedTermios);
    workingTermios = savedTermios;
    workingTermios.c_lflag &= ~tcflag_t(ICANON | ECHO);
    saved = &savedTermios;
    working = &workingTermios;
    resume();
}

TerminalMode::~TerminalMode()
{
    restore();
    working = nullptr;
    saved = nullptr;
}

bool TerminalMode::isActive() noexcept
{
    return saved;
}

void TerminalMode::restore() noexcept
{
    apply(saved);
}

void TerminalMode::resume() noexcept
{
    apply(working);
}
