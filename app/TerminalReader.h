// Reads keys from standard input and notices when none comes.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <optional>

/// Emits one key each time standard input becomes readable. Bytes of further keys stay with the
/// terminal, which thus remains readable until the last of them is taken.
///
/// SIGWINCH, which the session blocks, is open only while the reader waits for input: its handler
/// redraws, so it must interrupt neither an allocation nor a redraw.
class TerminalReader : public QObject {
    Q_OBJECT
public:
    /// Starts the idle timer with `idleMs` milliseconds.
    explicit TerminalReader(int idleMs);

signals:
    /// No key came for the idle time.
    void timeout();

    /// A key was read: a Qt::Key, or the value of the byte for any other; -1, once, at the end of
    /// input.
    void newKeyEvent(Qt::Key key);

public slots:
    /// Reads one key, blocking until it is complete or the session is ending.
    void readChar(int socket);

    /// Starts to watch standard input.
    void init();

private:
    void waitInLoop();
    bool waitForInput(int timeoutMs);
    std::optional<int> readKey();
    std::optional<int> readByte();

    QSocketNotifier *const stdinNotifier;
    QTimer idleTimer; ///< the only timer that ends the wait of the event loop
    const int idleMs;
    sigset_t waitMask; ///< the mask of the session without SIGWINCH
    int arrivedBytes = 0; ///< known to be readable; 0 or less when none is known
};
