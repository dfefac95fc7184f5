#include "bench/session/HeldKey.h"

#include "terminal/Keys.h"

#include <QThread>

#include <cmath>

namespace {

constexpr double heldMs = 2000;
constexpr double keyMs = 1000.0 / 30;
constexpr double byteMs = 1000.0 / 960;
constexpr int fifoSize = 16; // bytes that the relay takes at once, as a UART's FIFO does
constexpr double silenceMs = 1000; // after the release: nothing more will come
constexpr double latenessMs = 5; // by which the relay may wake up late without a gap on the line

// A line that takes one byte after the other.
class Relay {
public:
    explicit Relay(Program &program)
        : program(program)
    {
        clock.start();
    }

    double nowMs() const { return elapsedUs(clock) / 1000; }
    double lastByteMs() const { return freeMs; }

    /// Passes on what the program prints within `limitMs`, at most one FIFO full. Returns the
    /// number of bytes.
    int pass(double limitMs)
    {
        const double busyMs = freeMs - nowMs();
        if (busyMs > 0)
            QThread::usleep(ulong(1000 * qMin(busyMs, limitMs)));
        if (busyMs > limitMs)
            return 0;
        const double restMs = limitMs - qMax(0.0, busyMs);
        const int size = program.read(int(std::ceil(restMs)), fifoSize).size();
        if (size > 0)
            freeMs = qMax(freeMs, nowMs() - latenessMs) + size * byteMs;
        return size;
    }

private:
    Program &program;
    QElapsedTimer clock;
    double freeMs = 0; // when the last byte has left
};

} // namespace

HeldKey measureHeldDown(const Subject &subject)
{
    Program program(subject.command);
    program.firstFrame();
    Relay relay(program);
    HeldKey result;
    for (double nextKeyMs = 0; nextKeyMs < heldMs; nextKeyMs += keyMs) {
        program.send(Key::down);
        for (double restMs = nextKeyMs + keyMs - relay.nowMs(); restMs > 0;
             restMs = nextKeyMs + keyMs - relay.nowMs())
            result.bytes += relay.pass(restMs);
    }
    for (int size = 1; size > 0 || relay.lastByteMs() > relay.nowMs(); result.bytes += size)
        size = relay.pass(silenceMs);
    result.overrunMs = qMax(0.0, relay.lastByteMs() - heldMs);
    return result;
}
