// The line to the terminal on standard output.
#pragma once

#include "render/Line.h"

class TerminalLine : public Line {
public:
    /// Blocks while the terminal takes nothing. On an error, as after a hang-up, the rest is
    /// dropped.
    void write(const QByteArray &bytes) override;

    /// 0 on a pseudo-terminal, which passes its bytes on at once, and on anything but a terminal.
    int queuedBytes() const override;

    int bytesPerSecond() const override;

    qint64 milliseconds() const override;
};
