#include "bench/session/Measurement.h"

#include "terminal/Keys.h"

#include <QThread>

namespace {

void add(KeySamples &key, const Reply &reply)
{
    if (reply.bytes.isEmpty())
        return;
    key.us += reply.us;
    key.bytes += reply.bytes.size();
}

// Alternates a key and the key that reverts it.
void measurePair(Program &program, const QByteArray &there, const QByteArray &back, int count,
    KeySamples &key, KeySamples &backKey)
{
    const Usage before = program.usage();
    for (int i = 0; i < count && program.isRunning(); ++i) {
        add(key, program.press(there));
        add(backKey, program.press(back));
    }
    if (!program.isRunning())
        return;
    const Usage after = program.usage();
    key.cpuUs += (after.cpuUs - before.cpuUs) / (2 * count);
    key.writes += (after.writes - before.writes) / (2 * count);
}

} // namespace

QString whyUnfit(const QStringList &command)
{
    Program program(command);
    const Reply frame = program.firstFrame();
    const ExitStatus status = program.status();
    if (status.state == ExitStatus::Exited && status.value == 127)
        return QStringLiteral("cannot be run");
    if (status.state == ExitStatus::Exited)
        return QStringLiteral("ended with status %1 without waiting for a key").arg(status.value);
    if (status.state == ExitStatus::Killed)
        return QStringLiteral("was ended by signal %1").arg(status.value);
    if (frame.bytes.isEmpty())
        return QStringLiteral("prints nothing");
    return program.press({}).bytes.isEmpty() ? QString() : QStringLiteral("never stops printing");
}

void measureStart(const Subject &subject, Start &start)
{
    Program program(subject.command);
    const Reply reply = program.firstFrame();
    start.us += reply.us;
    start.peakKiB += program.peakMemory();
    start.frame = reply.bytes;
}

void measureKeys(const Subject &subject, int count, Keys &keys)
{
    KeySamples unused;
    Program program(subject.command);
    program.firstFrame();
    keys.downAnswer = program.press(Key::down).bytes;
    program.press(Key::up);
    measurePair(program, Key::down, Key::up, count, keys.down, unused);
    measurePair(program, Key::pageDown, Key::pageUp, count, keys.pageDown, unused);
    if (!subject.closeKey.isEmpty())
        measurePair(program, Key::enter, subject.closeKey, count, keys.open, keys.close);
    keys.hasEnded = keys.hasEnded || !program.isRunning();
}

Usage measureIdle(const Subject &subject)
{
    constexpr int seconds = 5;
    Program program(subject.command);
    program.firstFrame();
    program.press(Key::down);
    const Usage before = program.usage();
    QThread::sleep(seconds);
    Usage usage = program.usage();
    usage.cpuUs -= before.cpuUs;
    usage.wakeUps -= before.wakeUps;
    usage.switches -= before.switches;
    usage.writes -= before.writes;
    return usage;
}
