#include "terminal/PtySession.h"

#include <QDeadlineTimer>

bool PtySession::start(const QString &program, const QStringList &arguments, int rows, int columns)
{
    emulator.resize(rows, columns);
    return PtyProcess::start(program, arguments, rows, columns);
}

bool PtySession::press(const QByteArray &key)
{
    return send(key) && waitFor([this] { return isWaiting(); });
}

bool PtySession::waitForRest()
{
    // Checked twice: the process can also sleep for a moment between two child processes.
    constexpr int pauseMs = 5;
    return waitFor([this] { return isAtRest() && !takeOutput(pauseMs) && isAtRest(); });
}

void PtySession::resize(int rows, int columns)
{
    emulator.resize(rows, columns);
    setSize(rows, columns);
}

qint64 PtySession::scaled(int timeoutMs)
{
    return qint64(timeoutMs) * qMax(1, qEnvironmentVariableIntValue("DRAVIKON_TEST_SLOWDOWN"));
}

bool PtySession::waitFor(const std::function<bool()> &condition, int timeoutMs)
{
    constexpr int stepMs = 2;
    const QDeadlineTimer deadline(scaled(timeoutMs));
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        takeOutput(stepMs);
    }
    return true;
}

bool PtySession::waitForText(const QString &text)
{
    return waitFor([&] { return !emulator.screen().filter(text).isEmpty(); });
}

ExitStatus PtySession::waitForExit()
{
    if (waitFor([this] { return status().state != ExitStatus::Running; }))
        while (takeOutput(0)) { }
    return status();
}

void PtySession::mark()
{
    while (takeOutput(0)) { }
    output.clear();
    emulator.forgetWrittenRows();
}

bool PtySession::takeOutput(int timeoutMs)
{
    const QByteArray bytes = read(timeoutMs);
    output += bytes;
    emulator.feed(bytes);
    return !bytes.isEmpty();
}
