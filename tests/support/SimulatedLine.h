// A line of 9600 baud in simulated time, with the screen at its end.
#pragma once

#include "render/Line.h"
#include "terminal/TerminalEmulator.h"

class SimulatedLine : public Line {
public:
    void write(const QByteArray &bytes) override
    {
        terminal.feed(QByteArray(bytes).replace('\n', "\r\n"));
        lastByteUs = qMax(lastByteUs, nowUs) + bytes.size() * 1000000LL / bytesPerSecond();
        ++writes;
    }
    int queuedBytes() const override
    {
        const qint64 leftUs = qMax(0LL, lastByteUs - nowUs);
        return isStopped ? 1 : int(leftUs * bytesPerSecond() / 1000000);
    }
    int bytesPerSecond() const override { return 960; }
    qint64 milliseconds() const override { return nowUs / 1000; }

    TerminalEmulator terminal { 24, 80 };
    qint64 nowUs = 0;
    qint64 lastByteUs = 0; ///< when the last byte has left
    bool isStopped = false; ///< as after Ctrl-S: what is queued stays there
    int writes = 0;
};
