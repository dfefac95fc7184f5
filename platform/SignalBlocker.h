// Code that signals must not interrupt.
#pragma once

#include <QtGlobal>

#include <csignal>
#include <initializer_list>

/// The set of the given signals.
sigset_t signalSet(std::initializer_list<int> numbers);

/// All signals but SIGSEGV, SIGBUS, SIGFPE and SIGILL. The kernel ends a program at once that
/// causes one of these while it is blocked.
const sigset_t &asynchronousSignals();

/// Blocks a set of signals in this thread for a scope. The destructor restores the former mask
/// instead of unblocking the set: a handler runs with its own signal blocked, and unblocking that
/// there would let the handler interrupt itself.
class SignalBlocker {
public:
    explicit SignalBlocker(const sigset_t &set);
    ~SignalBlocker();
    Q_DISABLE_COPY(SignalBlocker)

    /// The mask that the destructor restores.
    const sigset_t &formerMask() const { return former; }

private:
    sigset_t former;
};
