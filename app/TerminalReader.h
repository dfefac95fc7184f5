// Reads keys from standard input and notices when none comes.
#pragma once

#include "render/Screen.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <optional>

/// Emits one key each time standard input becomes readable. Bytes of further keys stay with the
/// terminal, which thus remains readable until the last of them is taken.
///
/// Before it waits for input, also for the rest of a key, it lets the screen write. SIGWINCH, which
/// the session blocks, is unblocked only during these waits: its handler redraws, so it must
/// interrupt neither an allocation nor a redraw.
class TerminalReader : public QObject {
    Q_OBJECT
public:
    /// Starts the idle timer with `idleMs` milliseconds.
    TerminalReader(int idleMs, Screen &screen);

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
    bool waitForInput(int limitMs);
    bool hasInput();
    void countInput();
    std::optional<int> readKey();
    std::optional<int> readByte();

    QSocketNotifier *const stdinNotifier;
    QTimer idleTimer; ///< the only timer that ends the wait of the event loop
    const int idleMs;
    Screen &screen;
    sigset_t waitMask; ///< the mask of the session without SIGWINCH
    int arrivedBytes = 0; ///< known to be readable; 0 or less when none is known
    QElapsedTimer sinceCount; ///< since they were counted
};
