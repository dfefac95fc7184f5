#include "platform/SignalBlocker.h"

sigset_t signalSet(std::initializer_list<int> numbers)
{
    sigset_t set;
    sigemptyset(&set);
    for (const int number : numbers)
        sigaddset(&set, number);
    return set;
}

const sigset_t &asynchronousSignals()
{
    static const sigset_t set = [] {
        sigset_t result;
        sigfillset(&result);
        for (const int fault : { SIGSEGV, SIGBUS, SIGFPE, SIGILL })
            sigdelset(&result, fault);
        return result;
    }();
    return set;
}

SignalBlocker::SignalBlocker(const sigset_t &set)
{
    pthread_sigmask(SIG_BLOCK, &set, &former);
}

SignalBlocker::~SignalBlocker()
{
    pthread_sigmask(SIG_SETMASK, &former, nullptr);
}
