#include "app/ResizeSignal.h"

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

} // namespace

sigset_t ResizeSignal::hold()
{
    return change(SIG_BLOCK);
}

void ResizeSignal::open()
{
    change(SIG_UNBLOCK);
}

ResizeSignal::Hold::Hold()
    : before(change(SIG_BLOCK))
{
}

ResizeSignal::Hold::~Hold()
{
    restore(before);
}

ResizeSignal::Window::Window()
    : before(change(SIG_UNBLOCK))
{
}

ResizeSignal::Window::~Window()
{
    restore(before);
}
