// A program on a terminal of its own: starts it, types keys, waits for what its screen shows.
#pragma once

#include "tests/support/TerminalEmulator.h"

#include <functional>

#include <termios.h>

/// How a program ended; prints itself when a comparison fails.
struct ExitStatus {
    enum State { Running, Exited, Killed };
    State state;
    int value; ///< exit code or signal number, 0 while running
};

bool operator==(const ExitStatus &left, const ExitStatus &right);
char *toString(const ExitStatus &status);

class PtySession {
public:
    PtySession() = default;
    Q_DISABLE_COPY(PtySession)
    /// Kills the program if it still runs.
    ~PtySession();

    /// File for the standard error of the program, emptied at the start; "/dev/tty" is the terminal
    /// itself. Without it the messages go where those of the test go.
    void setStandardError(const QString &path) { errorPath = path.toLocal8Bit(); }
    /// Starts a program by its path, once in the life of a session. False without a terminal; a
    /// program that cannot be run exits with 127.
    bool start(const QString &program, const QStringList &arguments, int rows, int columns);

    /// Types all bytes in one burst. False when the terminal does not take them.
    bool send(const QByteArray &bytes);
    /// Types byte by byte; waits after each until the program has read it and sleeps again, for the
    /// next byte or for a tool that it runs, and takes the output. Two keys so never meet in one
    /// burst. False after the time limit. Of use once canonical mode is off.
    bool type(const QByteArray &bytes);
    /// Types the bytes of one key in one burst and waits as `type` does.
    bool press(const QByteArray &key);
    void signal(int number);
    /// Ends the program if it still runs. A session whose program works in a folder of its own does
    /// this before it removes the folder.
    void kill();
    void resize(int rows, int columns);

    /// Takes output until the condition holds; false when it does not within the time limit in
    /// milliseconds. DRAVIKON_TEST_SLOWDOWN in the environment multiplies every limit.
    bool waitFor(const std::function<bool()> &condition, int timeoutMs = 10000);
    /// A time limit in milliseconds, as the environment multiplies it.
    static qint64 scaled(int timeoutMs);
    /// Waits until a row of the screen contains the text.
    bool waitForText(const QString &text);
    /// Waits for the end of the program and takes its last output.
    ExitStatus waitForExit();

    /// Takes the output written up to now and begins to record anew.
    void mark();
    /// Output taken since the last mark, as it was written.
    QByteArray bytesSinceMark() const { return output; }

    const TerminalEmulator &terminal() const { return emulator; }
    /// Attributes of the terminal, which outlives the program.
    termios attributes() const;
    /// Process id of the program, -1 before the start.
    pid_t pid() const { return child; }

private:
    bool takeOutput(int timeoutMs);
    bool hasEnded();

    TerminalEmulator emulator { 24, 80 };
    int master = -1;
    int slave = -1;
    pid_t child = -1;
    ExitStatus exitStatus { ExitStatus::Running, 0 };
    QByteArray errorPath;
    QByteArray output;
};
