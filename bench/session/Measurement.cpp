// Measures the start, the keys and the idle time of a program.
#include "bench/session/Measurement.h"

#include <unistd.h>

namespace {

const std::string up = "\x1b[A";
const std::string down = "\x1b[B";
const std::string pageUp = "\x1b[5~";
const std::string pageDown = "\x1b[6~";
const std::string enter = "\n";

void add(Key &key, const Reply &reply)
{
    if (reply.bytes.empty())
        return;
    key.us.push_back(reply.us);
    key.bytes.push_back(double(reply.bytes.size()));
}

// Alternates a key and the key that reverts it.
void measurePair(Program &program, const std::string &there, const std::string &back, int count,
    Key &key, Key &backKey)
{
    const Usage before = program.usage();
    for (int i = 0; i < count && program.isRunning(); ++i) {
        add(key, program.press(there));
        add(backKey, program.press(back));
    }
    if (!program.isRunning())
        return;
    const Usage after = program.usage();
    key.cpuUs = (after.cpuUs - before.cpuUs) / (2 * count);
    key.writes = (after.writes - before.writes) / (2 * count);
}

} // namespace

void measureStart(const Subject &subject, Start &start)
{
    Program program(subject.command);
    const Reply reply = program.firstFrame();
    start.us.push_back(reply.us);
    start.peakKiB.push_back(program.peakMemory());
    start.frame = reply.bytes;
}

void measureKeys(const Subject &subject, int count, Keys &keys)
{
    Key unused;
    Program program(subject.command);
    program.firstFrame();
    keys.downAnswer = program.press(down).bytes;
    program.press(up);
    measurePair(program, down, up, count, keys.down, unused);
    measurePair(program, pageDown, pageUp, count, keys.pageDown, unused);
    if (!subject.closeKey.empty())
        measurePair(program, enter, subject.closeKey, count, keys.open, keys.close);
}

Usage measureIdle(const Subject &subject)
{
    constexpr int seconds = 5;
    Program program(subject.command);
    program.firstFrame();
    program.press(down);
    const Usage before = program.usage();
    sleep(seconds);
    Usage usage = program.usage();
    usage.cpuUs -= before.cpuUs;
    usage.wakeUps -= before.wakeUps;
    usage.switches -= before.switches;
    usage.writes -= before.writes;
    return usage;
}
