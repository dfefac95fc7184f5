#include "device/SignalBlocker.h"

sigset_t signalSet(std::initializer_list<int> numbers)
{
    sigset_t set;
    sigemptyset(&set);
    for (const int number : numbers)
        sigaddset(&set, number);
    return set;
}

sigset_t allSignals()
{
    sigset_t set;
    sigfillset(&set);
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
