// The line to the terminal.
#pragma once

#include <QByteArray>

/// Where bytes for the terminal leave, and how far they are; tests put a simulated line here.
class Line {
public:
    virtual ~Line() = default;

    /// Writes all of `bytes`, however long that takes.
    virtual void write(const QByteArray &bytes) = 0;

    /// The number of bytes that were written and have not left yet; 0 where that is not known.
    virtual int queuedBytes() const = 0;

    /// What the line transmits in a second, at least 1.
    virtual int bytesPerSecond() const = 0;

    /// A clock in milliseconds that only goes forward.
    virtual qint64 milliseconds() const = 0;
};
