#include "app/ResizeSignal.h"

#include <atomic>

namespace {

sigset_t resizeSignal()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGWINCH);
    return set;
}

sigset_t change(int how)
{
    const sigset_t set = resizeSignal();
    sigset_t before;
    pthread_sigmask(how, &set, &before);
    return before;
}

void restore(const sigset_t &before)
{
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

// Only the session's thread and the handlers on it ask and set this.
std::atomic<bool> isHeld(false);

} // namespace

sigset_t ResizeSignal::hold()
{
    const sigset_t before = change(SIG_BLOCK);
    isHeld = true;
    return before;
}

void ResizeSignal::open()
{
    isHeld = false;
    change(SIG_UNBLOCK);
}

ResizeSignal::Hold::Hold()
    : isOutermost(!isHeld)
{
    if (isOutermost)
        before = hold();
}

ResizeSignal::Hold::~Hold()
{
    if (!isOutermost)
        return;
    isHeld = false;
    restore(before);
}

ResizeSignal::Window::Window()
{
    open();
}

ResizeSignal::Window::~Window()
{
    hold();
}
