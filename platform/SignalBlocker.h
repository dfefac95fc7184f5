// Code that signals must not interrupt.
#pragma once

#include <csignal>
#include <initializer_list>

/// The set of the given signals.
sigset_t signalSet(std::initializer_list<int> numbers);

/// The signals that the code does not cause by a fault of its own. Faults must not be blocked: the
/// kernel would end the program at once, without its handlers.
const sigset_t &asynchronousSignals();

/// Blocks a set of signals in this thread for a scope. The destructor restores the former mask
/// instead of unblocking the set: a handler runs with its own signal blocked, and unblocking that
/// there would let the handler interrupt itself.
class SignalBlocker {
public:
    explicit SignalBlocker(const sigset_t &set);
    ~SignalBlocker();
    SignalBlocker(const SignalBlocker &) = delete;
    SignalBlocker &operator=(const SignalBlocker &) = delete;

    /// The mask that the destructor restores.
    const sigset_t &formerMask() const { return former; }

private:
    sigset_t former;
};
