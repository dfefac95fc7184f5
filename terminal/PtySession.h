// A process on a pseudo-terminal together with the screen that it draws there.
#pragma once

#include "terminal/PtyProcess.h"
#include "terminal/TerminalEmulator.h"

#include <functional>

class PtySession : public PtyProcess {
public:
    bool start(const QString &program, const QStringList &arguments, int rows, int columns);

    /// Sends the bytes of one key and waits until the process has read them and sleeps again, for
    /// the next key or for a child process; takes the output. False after the time limit. The
    /// process must have switched canonical mode off.
    bool press(const QByteArray &key);
    /// Waits until the process is at rest and takes the output. False after the time limit.
    bool waitForRest();
    void resize(int rows, int columns);

    /// Takes output until the condition holds; false if it does not within the time limit in
    /// milliseconds. DRAVIKON_TEST_SLOWDOWN in the environment multiplies every limit.
    bool waitFor(const std::function<bool()> &condition, int timeoutMs = 10000);
    /// A time limit in milliseconds, multiplied by DRAVIKON_TEST_SLOWDOWN.
    static qint64 scaled(int timeoutMs);
    /// Waits until a row of the screen contains the text.
    bool waitForText(const QString &text);
    /// Waits for the end of the process and takes its last output.
    ExitStatus waitForExit();

    /// Takes the output written up to now and begins to record bytes and written rows anew.
    void mark();
    /// Output taken since the last mark, as it was written.
    const QByteArray &bytesSinceMark() const { return output; }

    const TerminalEmulator &terminal() const { return emulator; }

private:
    bool takeOutput(int timeoutMs);

    TerminalEmulator emulator { 24, 80 };
    QByteArray output;
};
