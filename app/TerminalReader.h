// Reads keys from standard input and notices when none comes.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <optional>

/// Emits one key each time standard input becomes readable. Bytes of further keys that came with it
/// wait in the buffer of standard input until it becomes readable again.
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
    std::optional<int> readKey();
    static std::optional<int> readByte();

    QSocketNotifier *const stdinNotifier;
    QTimer idleTimer;
    const int idleMs;
};
