#include "device/SignalBlocker.h"

sigset_t signalSet(std::initializer_list<int> signals)
{
    sigset_t set;
    sigemptyset(&set);
    for (const int number : signals)
        sigaddset(&set, number);
    return set;
}

sigset_t allSignals()
{
    sigset_t set;
    sigfillset(&set);
    return set;
}

SignalBlocker::SignalBlocker(const sigset_t &signals)
{
    pthread_sigmask(SIG_BLOCK, &signals, &former);
}

SignalBlocker::~SignalBlocker()
{
    pthread_sigmask(SIG_SETMASK, &former, nullptr);
}
