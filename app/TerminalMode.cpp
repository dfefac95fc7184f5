#include "app/TerminalMode.h"

#include <atomic>

#include <unistd.h>

static std::atomic<const TerminalMode *> current(nullptr); // for signal handlers

TerminalMode::TerminalMode()
{
    tcgetattr(STDIN_FILENO, &savedTermios);
    workingTermios = savedTermios;
    workingTermios.c_lflag &= ~tcflag_t(ICANON | ECHO);
    current = this;
    resume();
}

TerminalMode::~TerminalMode()
{
    restore();
    current = nullptr;
}

bool TerminalMode::isActive() noexcept
{
    const pid_t foreground = tcgetpgrp(STDIN_FILENO);
    return current && (foreground <= 0 || foreground == getpgrp());
}

void TerminalMode::restore() noexcept
{
    if (isActive())
        tcsetattr(STDIN_FILENO, TCSANOW, &current.load()->savedTermios);
}

void TerminalMode::resume() noexcept
{
    if (const TerminalMode *const mode = current)
        tcsetattr(STDIN_FILENO, TCSANOW, &mode->workingTermios);
}
